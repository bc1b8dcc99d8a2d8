// SPDX-License-Identifier: MIT
//
// Numbers as people write them: with a currency sign, groups of digits, either decimal mark, an
// exponent, a percent sign.
#pragma once

#include <optional>
#include <string_view>

#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

struct ScannedNumber {
  bool is_integer = true;
  bool leading_zeros = false;
  NumberMarks marks;
};

/// The number that the whole text is, if it is one. Linear in the text.
[[nodiscard]] std::optional<ScannedNumber> scan_number(std::u16string_view text) noexcept;

}  // namespace textimport::analysis
