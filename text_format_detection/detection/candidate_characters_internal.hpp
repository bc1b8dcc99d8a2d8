// SPDX-License-Identifier: MIT
//
// Which characters of a sample may be delimiters.
#pragma once

#include <string>

#include "text_format_detection/model/field_array.hpp"

namespace textio::detection {

/// The distinct candidate delimiters among the characters of the sample's middle lines, in order of
/// first appearance. `lines` holds one field for each line, as the line reader stores them.
///
/// The first third and the last sixth of the non-empty lines are not looked at, so that a title
/// block or a summary at the end adds no candidate; of two to five lines all but the first are.
/// Letters, digits, quotes, brackets, signs, "$", "@", line ends and everything that is not ASCII
/// never separate fields.
[[nodiscard]] std::u16string candidate_characters(FieldArray const& lines);

/// Whether the character is a candidate when it stands in the middle lines.
[[nodiscard]] bool may_be_delimiter(char16_t unit) noexcept;

}  // namespace textio::detection
