// SPDX-License-Identifier: MIT

#include "text_import/format/utf.hpp"

#include <array>

namespace textimport {

namespace {

/// The number of bytes of the character that begins with this one; 0 for none.
std::size_t length_from(unsigned char const lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead < 0xC2) {
    return 0;
  }
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

/// The values that a byte may have.
struct ByteRange {
  unsigned char first = 0x80;
  unsigned char last = 0xBF;
};

/// Of the byte behind the first one. The narrower ranges keep out characters that are longer than
/// need be, surrogates, and numbers above U+10FFFF.
ByteRange second_bytes(unsigned char const lead) {
  switch (lead) {
    case 0xE0:
      return {0xA0, 0xBF};
    case 0xED:
      return {0x80, 0x9F};
    case 0xF0:
      return {0x90, 0xBF};
    case 0xF4:
      return {0x80, 0x8F};
    default:
      return {};
  }
}

}  // namespace

std::optional<char32_t> next_character(std::string_view const bytes, std::size_t& pos) {
  constexpr std::array<unsigned char, 5> lead_bits{0, 0x7F, 0x1F, 0x0F, 0x07};
  auto const lead = static_cast<unsigned char>(bytes[pos++]);
  std::size_t const length = length_from(lead);
  ByteRange range = second_bytes(lead);
  char32_t c = lead & lead_bits[length];
  for (std::size_t i = 1; i < length; ++i) {
    auto const trail = static_cast<unsigned char>(pos < bytes.size() ? bytes[pos] : 0);
    if (trail < range.first || trail > range.last) {
      return std::nullopt;
    }
    c = (c << 6U) | (trail & 0x3FU);
    range = {};
    ++pos;
  }
  return length == 0 ? std::nullopt : std::optional(c);
}

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
    std::optional<char32_t> const c = next_character(bytes, pos);
    if (!c) {
      return std::nullopt;
    }
    append_utf16(text, *c);
  }
  return text;
}

}  // namespace textimport
