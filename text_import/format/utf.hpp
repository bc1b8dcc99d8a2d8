// SPDX-License-Identifier: MIT
//
// Between the UTF-8 of command lines and terminals and the UTF-16 of the library.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace textimport {

/// The character at `pos`, which moves behind it. A lone surrogate comes back as itself.
[[nodiscard]] char32_t next_character(std::u16string_view text, std::size_t& pos);

[[nodiscard]] inline bool is_surrogate(char32_t const c) {
  return c >= 0xD800 && c <= 0xDFFF;
}

void append_utf8(std::string& bytes, char32_t c);

/// UTF-16 to UTF-8; a lone surrogate becomes U+FFFD.
[[nodiscard]] std::string to_utf8(std::u16string_view text);

/// UTF-8 to UTF-16; nothing when the bytes are no UTF-8.
[[nodiscard]] std::optional<std::u16string> from_utf8(std::string_view bytes);

}  // namespace textimport
