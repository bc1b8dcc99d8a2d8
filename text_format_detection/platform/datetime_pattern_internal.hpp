// SPDX-License-Identifier: MIT
//
// A text against a format of pattern letters, such as "dd.MM.yyyy HH:mm".
#pragma once

#include <string_view>

namespace textio::platform {

/// True when the whole text reads as a date-time in the format, which is not empty.
/// The letters and the errors are those of `is_datetime`. Takes time linear in the format.
[[nodiscard]] bool matches_datetime_format(std::u16string_view text, std::u16string_view format);

}  // namespace textio::platform
