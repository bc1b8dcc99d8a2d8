// SPDX-License-Identifier: MIT
//
// What a value is that is nothing but text: a word, a phrase, or the broken piece that a cut at the
// wrong place leaves.
#pragma once

#include <string_view>

#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

/// Word, Phrase or Broken. `quote` 0: there are no quotes. Delimiters among the `ordinary`
/// characters may stand in any value. Linear in the text.
[[nodiscard]] ValueShape shape_of_text(std::u16string_view text, char16_t quote,
                                       std::u16string_view ordinary) noexcept;

}  // namespace textimport::analysis
