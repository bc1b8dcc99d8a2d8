// SPDX-License-Identifier: MIT
//
// Numbers as people write them: with a currency sign, groups of digits, either decimal mark, an
// exponent, a percent sign.
#pragma once

#include <optional>
#include <string_view>

#include "text_import/survey/value_shape_internal.hpp"

namespace textimport::survey {

struct scanned_number {
  bool is_integer = true;
  bool leading_zeros = false;
  number_marks marks;
};

/// The number that the whole text is, if it is one. Linear in the text.
[[nodiscard]] std::optional<scanned_number> scan_number(std::u16string_view text) noexcept;

}  // namespace textimport::survey
