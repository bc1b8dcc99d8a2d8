// SPDX-License-Identifier: MIT

#include "text_import/format/json_values_internal.hpp"

#include <cmath>

namespace textimport {

void write_value(JsonWriter& writer, std::string_view const text) {
  writer.value(text);
}

void write_value(JsonWriter& writer, std::string const& bytes) {
  if (from_utf8(bytes)) {
    writer.value(std::string_view(bytes));
    return;
  }
  writer.begin_object();
  write_member(writer, "bytes", std::string_view(hexadecimal(bytes)));
  writer.end_object();
}

void write_value(JsonWriter& writer, std::u16string const& text) {
  if (!has_lone_surrogate(text)) {
    writer.value(std::string_view(to_utf8(text)));
    return;
  }
  writer.begin_object();
  write_member(writer, "utf16", std::vector<std::uint16_t>(text.begin(), text.end()));
  writer.end_object();
}

void write_value(JsonWriter& writer, char16_t const character) {
  if (character == 0) {
    writer.value(nullptr);
  } else {
    write_value(writer, std::u16string(1, character));
  }
}

void write_value(JsonWriter& writer, double const number) {
  constexpr double largest = 1e15;
  constexpr double steps = 1e4;
  if (std::abs(number) < largest) {
    writer.value(std::round(number * steps) / steps);
  } else {
    writer.value(nullptr);
  }
}

void write_format(JsonWriter& writer, Format const& format) {
  writer.begin_object();
  write_member(writer, "schema", json_schema);
  write_members(writer, format);
  writer.end_object();
}

std::string hexadecimal(std::string_view const bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (char const c : bytes) {
    auto const byte = static_cast<unsigned char>(c);
    text += digits[byte >> 4U];
    text += digits[byte & 0x0FU];
  }
  return text;
}

}  // namespace textimport
