// SPDX-License-Identifier: MIT

#include "text_import/format/json_values_internal.hpp"

#include <cmath>

#include "text_import/format/utf.hpp"

namespace textimport {

Json json_value(std::u16string const& text) {
  if (!has_lone_surrogate(text)) {
    return to_utf8(text);
  }
  Json units = Json::array();
  for (char16_t const unit : text) {
    units.push_back(std::uint16_t{unit});
  }
  return {{"utf16", std::move(units)}};
}

Json json_value(std::string const& bytes) {
  return from_utf8(bytes) ? Json(bytes) : Json{{"bytes", hexadecimal(bytes)}};
}

Json json_value(char16_t const character) {
  return character == 0 ? Json() : json_value(std::u16string(1, character));
}

Json json_value(double const number) {
  constexpr double largest = 1e15;
  constexpr double steps = 1e4;
  return std::abs(number) < largest ? Json(std::round(number * steps) / steps) : Json();
}

std::string hexadecimal(std::string const& bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (char const c : bytes) {
    auto const byte = static_cast<unsigned char>(c);
    text += digits[byte >> 4U];
    text += digits[byte & 0x0FU];
  }
  return text;
}

Json format_object(Format const& format) {
  Json object{{"schema", json_schema}};
  object.update(json_value(format));
  return object;
}

std::string compact_text(Json const& json) {
  constexpr int on_one_line = -1;
  constexpr bool only_ascii = true;
  return json.dump(on_one_line, ' ', only_ascii, Json::error_handler_t::replace);
}

}  // namespace textimport
