// SPDX-License-Identifier: MIT

#include "text_import/format/format_reader_internal.hpp"

#include <algorithm>

#include "text_import/format/utf.hpp"

namespace textimport {

namespace {

using nlohmann::json;

std::string joined(std::vector<std::string_view> const& words) {
  std::string text;
  for (std::string_view const word : words) {
    text += text.empty() ? "" : ", ";
    text += word;
  }
  return text;
}

/// The value in short, for sentences.
std::string shown(json const& value) {
  if (value.is_object()) {
    return "an object";
  }
  return value.is_array() ? "a list" : value.dump(-1, ' ', true, json::error_handler_t::replace);
}

/// The only member of an object with one member of this name; null for anything else.
json const* only_member(json const& value, char const* const name) {
  auto const found = value.is_object() && value.size() == 1 ? value.find(name) : value.end();
  return found == value.end() ? nullptr : &*found;
}

std::optional<unsigned> hexadecimal_digit(char const c) {
  if (c >= '0' && c <= '9') {
    return static_cast<unsigned>(c - '0');
  }
  return c >= 'a' && c <= 'f' ? std::optional(static_cast<unsigned>(c - 'a') + 10) : std::nullopt;
}

std::optional<std::string> bytes_of(std::string const& digits) {
  std::string bytes;
  for (std::size_t pos = 0; pos < digits.size(); pos += 2) {
    auto const high = hexadecimal_digit(digits[pos]);
    auto const low = pos + 1 < digits.size() ? hexadecimal_digit(digits[pos + 1]) : std::nullopt;
    if (!high || !low) {
      return std::nullopt;
    }
    bytes += static_cast<char>(*high << 4U | *low);
  }
  return bytes;
}

}  // namespace

void JsonPlace::fail(std::string_view const sentence) const {
  if (error.empty()) {
    error.append(path.empty() ? "the Format" : path).append(": ").append(sentence);
  }
}

JsonPlace JsonPlace::at(json const& part, std::string_view const name) const {
  return {part, std::string(path).append("/").append(name), error};
}

void fail_as_word(JsonPlace const& place, std::vector<std::string_view> const& allowed) {
  place.fail(shown(place.value) + " is not allowed; allowed: " + joined(allowed));
}

void refuse_unknown_members(JsonPlace const& place, std::vector<std::string_view> const& names) {
  for (auto const& [name, value] : place.value.items()) {
    if (std::ranges::find(names, name) == names.end()) {
      place.fail("unknown member \"" + name + "\"; allowed: " + joined(names));
    }
  }
}

std::optional<std::uint64_t> read_number(JsonPlace const& place, std::uint64_t const largest) {
  auto const* const number = place.value.get_ptr<json::number_unsigned_t const*>();
  if (number == nullptr || *number > largest) {
    place.fail(shown(place.value) + " is not allowed; allowed: whole numbers from 0 to " +
               std::to_string(largest));
    return std::nullopt;
  }
  return *number;
}

void read_value(JsonPlace const& place, std::u16string& text) {
  if (auto const* const utf8 = place.value.get_ptr<std::string const*>()) {
    text = from_utf8(*utf8).value_or(std::u16string());  // the JSON parser took it for UTF-8
    return;
  }
  json const* const units = only_member(place.value, "utf16");
  if (units == nullptr) {
    place.fail(R"(a string is expected, or {"utf16": [code units]})");
    return;
  }
  std::vector<std::uint16_t> numbers;
  read_value(place.at(*units, "utf16"), numbers);
  if (place.error.empty()) {
    text.assign(numbers.begin(), numbers.end());
  }
}

void read_value(JsonPlace const& place, std::string& bytes) {
  if (auto const* const utf8 = place.value.get_ptr<std::string const*>()) {
    bytes = *utf8;
    return;
  }
  json const* const digits = only_member(place.value, "bytes");
  auto const* const text = digits == nullptr ? nullptr : digits->get_ptr<std::string const*>();
  auto const known = text == nullptr ? std::nullopt : bytes_of(*text);
  if (!known) {
    place.fail(R"(a string is expected, or {"bytes": "small hexadecimal digits"})");
    return;
  }
  bytes = *known;
}

void read_value(JsonPlace const& place, char16_t& character) {
  if (place.value.is_null()) {
    character = 0;
    return;
  }
  std::u16string text;
  read_value(place, text);
  if (text.size() != 1 || text.front() == 0) {
    place.fail("one character is expected, of one UTF-16 code unit, or null for none");
    return;
  }
  character = text.front();
}

void read_value(JsonPlace const& place, bool& flag) {
  if (auto const* const value = place.value.get_ptr<bool const*>()) {
    flag = *value;
  } else {
    place.fail(shown(place.value) + " is not allowed; allowed: true, false");
  }
}

}  // namespace textimport
