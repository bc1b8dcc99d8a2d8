// SPDX-License-Identifier: MIT
//
// How many cells a character takes on a terminal.
#pragma once

#include <cstddef>
#include <optional>

namespace textimport::reporting {

/// 0 for accents and what joins characters, 2 for Chinese, Japanese, Korean characters and most
/// emoji, 1 for the rest. Empty for what must not be shown as it is: control characters, line
/// separators, lone surrogates, characters that are invisible or turn the direction of writing.
[[nodiscard]] std::optional<std::size_t> cells_of(char32_t c);

}  // namespace textimport::reporting
