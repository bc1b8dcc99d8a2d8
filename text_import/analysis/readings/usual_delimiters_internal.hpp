// SPDX-License-Identifier: MIT
//
// The delimiters that most files have, the most usual one first.
#pragma once

#include <string_view>

namespace textimport::analysis {

inline constexpr std::u16string_view common_delimiters = u",\t;|";

/// Whether the delimiter, which may be longer, is one of them.
[[nodiscard]] constexpr bool is_common(std::u16string_view const delimiter) noexcept {
  return delimiter.size() == 1 &&
         common_delimiters.find(delimiter.front()) != std::u16string_view::npos;
}

}  // namespace textimport::analysis
