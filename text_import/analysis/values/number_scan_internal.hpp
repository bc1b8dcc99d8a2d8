// SPDX-License-Identifier: MIT
//
// Numbers as people write them: with a currency before or behind, groups of digits, either decimal
// mark, an exponent, a per cent sign, in parentheses or with the minus sign behind.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

/// Which characters mean what inside a number. Both sets may hold the same mark: then the digits
/// around it decide.
struct NumberRules {
  std::u16string decimal_marks = u".,";
  /// Between groups of three digits, or of two in the Indian manner.
  std::u16string thousands_marks = u".,' \u2019\u00A0\u202F\u2009";
  std::u16string exponent_characters = u"eEdD";
  std::size_t max_decimals = std::u16string::npos;
  /// A mark that is known to be the decimal one needs no digit behind it: "5,".
  bool mark_is_known = false;
};

struct ScannedNumber {
  bool is_integer = true;
  bool leading_zeros = false;
  NumberMarks marks;
  NumberDress dress;
};

/// The number that the whole text is, if it is one. Linear in the text.
[[nodiscard]] std::optional<ScannedNumber> scan_number(std::u16string_view text,
                                                       NumberRules const& rules) noexcept;

}  // namespace textimport::analysis
