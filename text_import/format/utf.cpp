// SPDX-License-Identifier: MIT

#include "text_import/format/utf.hpp"

#include <cstdint>

#include <unicode/ustring.h>

namespace textimport {

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

std::string to_utf8(std::u16string_view const text) {
  std::string bytes;
  for (std::size_t pos = 0; pos < text.size();) {
    char32_t const c = next_character(text, pos);
    append_utf8(bytes, is_surrogate(c) ? U'\uFFFD' : c);
  }
  return bytes;
}

std::optional<std::u16string> from_utf8(std::string_view const bytes) {
  std::u16string text(bytes.size(), u'\0');  // never longer than the bytes
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(text.data(), static_cast<std::int32_t>(text.size()), &length, bytes.data(),
                static_cast<std::int32_t>(bytes.size()), &error);
  if (U_FAILURE(error)) {
    return std::nullopt;
  }
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace textimport
