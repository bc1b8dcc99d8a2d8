// SPDX-License-Identifier: MIT
#include "tests/support/json.hpp"

#include <cmath>

#include "tests/support/text.hpp"

namespace support {

void read_value(json const& value, std::u16string& text) {
  text.clear();
  if (value.is_string()) {
    text = to_utf16(value.get<std::string>());
  } else {
    for (json const& unit : value) {
      text.push_back(static_cast<char16_t>(unit.get<unsigned>()));
    }
  }
}

void read_value(json const& value, std::vector<std::u16string>& texts) {
  texts.clear();
  for (json const& text : value) {
    texts.push_back(value_of<std::u16string>(text));
  }
}

void read_value(json const& value, char16_t& unit) {
  unit = value.is_null() ? textio::end_mark : value_of<std::u16string>(value).at(0);
}

void read_value(json const& value, std::size_t& count) {
  count = value.is_null() ? textio::unknown_count : value.get<std::size_t>();
}

void read_value(json const& value, double& number) {
  number = value.is_string() ? std::stod(value.get<std::string>()) : value.get<double>();
}

void read_value(json const& value, std::pair<std::u16string&, char16_t&> const replacement) {
  read_value(value.at(0), replacement.first);
  read_value(value.at(1), replacement.second);
}

void read_value(json const& value, std::pair<std::uint32_t&, bool&> const limit) {
  limit.second = !value.is_null();
  limit.first = limit.second ? value.get<std::uint32_t>() : 0;
}

json write_value(double const number) {
  if (std::isnan(number)) {
    return "nan";
  }
  return std::isinf(number) ? json("inf") : json(number);
}

json write_value(std::size_t const count) {
  return count == textio::unknown_count ? json() : json(count);
}

json write_value(std::int32_t const count) {
  return count;
}

json write_value(std::u16string const& text) {
  std::string escaped = "\"";
  for (char16_t const unit : text) {
    escaped += escape(unit);
  }
  return json::parse(escaped + '"');
}

json write_value(std::vector<std::u16string> const& texts) {
  json out = json::array();
  for (std::u16string const& text : texts) {
    out.push_back(write_value(text));
  }
  return out;
}

}  // namespace support
