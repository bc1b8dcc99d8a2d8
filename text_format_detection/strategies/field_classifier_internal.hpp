// SPDX-License-Identifier: MIT
//
// What one field's text looks like: the tests for numbers, integers, durations and dates in their
// fixed order.
#pragma once

#include <string_view>

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"

namespace textio::strategies {

/// The type of one text that is not empty; never Reserved or Undecided.
///
/// The text is taken as it is: trimming, the leading character and missing values are the
/// caller's. A date-time format that is wrong makes no text a date. Linear in the text.
/// Throws nothing but allocation failure, and allocates only for replacement and removal sets.
[[nodiscard]] enums::ColumnType classify_field(
    ostrel::io::text::typedetection::TypeAnalyzerOptions const& options, std::u16string_view text);

}  // namespace textio::strategies
