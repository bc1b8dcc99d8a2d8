// SPDX-License-Identifier: MIT
//
// The grammar of single values: numbers, hexadecimal and binary integers, durations. Each function
// looks at a whole text, from left to right and without going back.
#pragma once

#include <cstddef>
#include <string_view>

namespace textio::strategies {

/// What numbers may look like, beyond what they always look like.
struct NumberGrammar {
  std::u16string_view exponent_characters;               ///< set: what may introduce an exponent
  std::size_t max_decimals = std::u16string_view::npos;  ///< digits allowed behind the point
};

/// True for a real number ("5.", ".5", "-1.5e3", "NaN", "+inf"), an imaginary one ("3i") or a
/// complex one ("1+2i", "1e3-Infj"). An exponent needs a digit, and so does what stands before it.
[[nodiscard]] bool is_number(std::u16string_view text, NumberGrammar const& grammar) noexcept;

/// True for NaN or Inf in any letter case, with or without a sign.
[[nodiscard]] bool is_nan_or_inf(std::u16string_view text) noexcept;

/// True for "0x" followed by nothing but hexadecimal digits, or by nothing; any letter case.
[[nodiscard]] bool is_hexadecimal(std::u16string_view text) noexcept;

/// True for "0b" followed by nothing but 0 and 1, or by nothing; any letter case.
[[nodiscard]] bool is_binary(std::u16string_view text) noexcept;

/// The number of digit groups of a duration such as "hh:mm" (2), "hh:mm:ss" (3) or "dd:hh:mm:ss.S"
/// (4); 0 for any other text. A sign may stand before the groups, a point with any number of digits
/// behind the last of them. The values of the groups are not looked at.
[[nodiscard]] std::size_t count_duration_groups(std::u16string_view text) noexcept;

/// True for a time of day with seconds: it has the shape of a duration of three groups.
[[nodiscard]] inline bool is_time_of_day(std::u16string_view const text) noexcept {
  return count_duration_groups(text) == 3;
}

}  // namespace textio::strategies
