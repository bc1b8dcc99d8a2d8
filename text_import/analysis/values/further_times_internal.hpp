// SPDX-License-Identifier: MIT
//
// Dates and times that people and programs write beyond the usual forms: short years, points with
// blanks behind them, zones by name, decimals of seconds behind a comma, days in front of a time.
#pragma once

#include <string_view>

#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

/// A Date, a DateTime, a Duration (a time of day is one), or Empty for what is none of them. Linear
/// in the text.
[[nodiscard]] ValueShape shape_of_further_time(std::u16string_view text);

/// Whether a Duration may be a time of day: hours and minutes of two digits that a clock shows, or
/// AM or PM behind it.
[[nodiscard]] bool is_time_of_day(std::u16string_view text) noexcept;

/// The zone at the end of a date with a time, such as "Z", "+01:00", "CET"; empty when it has none.
[[nodiscard]] std::u16string_view zone_of(std::u16string_view date_time) noexcept;

}  // namespace textimport::analysis
