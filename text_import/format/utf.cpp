// SPDX-License-Identifier: MIT

#include "text_import/format/utf.hpp"

#include <array>

namespace textimport {

namespace {

constexpr char32_t no_character = 0xFFFFFFFF;

/// The number of bytes of the character that begins with this one; 0 for none.
std::size_t length_from(char32_t const lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead < 0xC0) {
    return 0;
  }
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
}

/// The character at `pos`, which moves behind it; no_character where the bytes are no UTF-8.
char32_t next_from_utf8(std::string_view const bytes, std::size_t& pos) {
  constexpr std::array<char32_t, 5> lead_bits{0, 0x7F, 0x1F, 0x0F, 0x07};
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  auto const byte_at = [bytes](std::size_t const place) -> char32_t {
    return static_cast<unsigned char>(bytes[place]);
  };
  std::size_t const length = length_from(byte_at(pos));
  if (length == 0 || length > bytes.size() - pos) {
    return no_character;
  }
  char32_t c = byte_at(pos) & lead_bits[length];
  for (std::size_t i = 1; i < length; ++i) {
    char32_t const trail = byte_at(pos + i);
    if ((trail & 0xC0U) != 0x80) {
      return no_character;
    }
    c = (c << 6U) | (trail & 0x3FU);
  }
  pos += length;
  return c < smallest[length] || c > 0x10FFFF || is_surrogate(c) ? no_character : c;
}

}  // namespace

char32_t next_character(std::u16string_view const text, std::size_t& pos) {
  char32_t const lead = text[pos++];
  bool const has_trail = lead >= 0xD800 && lead <= 0xDBFF && pos < text.size() &&
                         text[pos] >= 0xDC00 && text[pos] <= 0xDFFF;
  if (!has_trail) {
    return lead;
  }
  char32_t const trail = text[pos++];
  return 0x10000 + ((lead - 0xD800) << 10U) + (trail - 0xDC00);
}

void append_utf8(std::string& bytes, char32_t const c) {
  auto const add = [&bytes](char32_t const byte) { bytes += static_cast<char>(byte); };
  if (c < 0x80) {
    add(c);
    return;
  }
  if (c < 0x800) {
    add(0xC0 | (c >> 6U));
  } else if (c < 0x10000) {
    add(0xE0 | (c >> 12U));
    add(0x80 | ((c >> 6U) & 0x3FU));
  } else {
    add(0xF0 | (c >> 18U));
    add(0x80 | ((c >> 12U) & 0x3FU));
    add(0x80 | ((c >> 6U) & 0x3FU));
  }
  add(0x80 | (c & 0x3FU));
}

void append_utf16(std::u16string& text, char32_t const c) {
  if (c < 0x10000) {
    text += static_cast<char16_t>(c);
    return;
  }
  text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U));
  text += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FFU));
}

bool has_lone_surrogate(std::u16string_view const text) {
  for (std::size_t pos = 0; pos < text.size();) {
    if (is_surrogate(next_character(text, pos))) {
      return true;
    }
  }
  return false;
}

std::string to_utf8(std::u16string_view const text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    char32_t const c = next_character(text, pos);
    append_utf8(bytes, is_surrogate(c) ? U'\uFFFD' : c);
  }
  return bytes;
}

std::optional<std::u16string> from_utf8(std::string_view const bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  for (std::size_t pos = 0; pos < bytes.size();) {
    char32_t const c = next_from_utf8(bytes, pos);
    if (c == no_character) {
      return std::nullopt;
    }
    append_utf16(text, c);
  }
  return text;
}

}  // namespace textimport
