// SPDX-License-Identifier: MIT
//
// Between UTF-8, which the world outside writes, and the UTF-16 of texts.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "text_import/export.hpp"

namespace textimport {

/// The character at `pos`, which moves behind it. A lone surrogate comes back as itself.
[[nodiscard]] TEXT_IMPORT_API char32_t next_character(std::u16string_view text, std::size_t& pos);

/// The same of UTF-8. Nothing where the bytes are none; `pos` then moves behind the longest part of
/// a character that stands there, or behind one byte that begins none.
[[nodiscard]] TEXT_IMPORT_API std::optional<char32_t> next_character(std::string_view bytes,
                                                                     std::size_t& pos);

[[nodiscard]] constexpr bool is_surrogate(char32_t const c) noexcept {
  return c >= 0xD800 && c <= 0xDFFF;
}

/// Whether a surrogate stands in the text without its partner, so that it has no UTF-8.
[[nodiscard]] TEXT_IMPORT_API bool has_lone_surrogate(std::u16string_view text);

/// Appends a character, at most U+10FFFF.
TEXT_IMPORT_API void append_utf8(std::string& bytes, char32_t c);
TEXT_IMPORT_API void append_utf16(std::u16string& text, char32_t c);

/// UTF-16 to UTF-8; a lone surrogate becomes U+FFFD.
[[nodiscard]] TEXT_IMPORT_API std::string to_utf8(std::u16string_view text);

/// UTF-8 to UTF-16; nothing when the bytes are no UTF-8: characters that are cut or longer than
/// need be, surrogates, numbers above U+10FFFF.
[[nodiscard]] TEXT_IMPORT_API std::optional<std::u16string> from_utf8(std::string_view bytes);

}  // namespace textimport
