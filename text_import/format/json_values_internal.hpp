// SPDX-License-Identifier: MIT
//
// Values as JSON: how texts, bytes, characters, numbers, words and the parts of a Format are
// written, wherever they stand.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "text_import/format/format_members_internal.hpp"
#include "text_import/format/words.hpp"

namespace textimport {

using Json = nlohmann::ordered_json;

/// "schema": the number of the JSON form. It changes when a member is removed or changes its
/// meaning.
inline constexpr std::uint64_t json_schema = 2;

[[nodiscard]] Json json_value(std::u16string const& text);
[[nodiscard]] Json json_value(std::string const& bytes);

/// A character; null for 0.
[[nodiscard]] Json json_value(char16_t character);

[[nodiscard]] inline Json json_value(bool const value) {
  return value;
}

[[nodiscard]] Json json_value(std::unsigned_integral auto const number) {
  return number;
}

/// A share, a score, a measure: to four decimals. Null for what is no such number: NaN, and what
/// stands for none by being infinite or beyond 1e15.
[[nodiscard]] Json json_value(double number);

/// Bytes in hexadecimal, two small digits each.
[[nodiscard]] std::string hexadecimal(std::string const& bytes);

template <class Enum>
requires std::is_enum_v<Enum>

[[nodiscard]] Json json_value(Enum const value) {
  return word_of(value);
}

template <class Part>
requires std::is_class_v<Part>
[[nodiscard]] Json json_value(Part const& part);

template <class T>
[[nodiscard]] Json json_value(std::optional<T> const& value) {
  return value ? json_value(*value) : Json();
}

template <class T>
[[nodiscard]] Json json_value(std::vector<T> const& list) {
  Json array = Json::array();
  for (T const& item : list) {
    array.push_back(json_value(item));
  }
  return array;
}

template <class Part>

requires std::is_class_v<Part> Json json_value(Part const& part) {
  Json object = Json::object();
  auto const add = [&object](char const* const name, auto const& member) {
    object.push_back({name, json_value(member)});
  };
  visit_members(add, part);
  return object;
}

/// A Format as it is saved, "schema" in front.
[[nodiscard]] Json format_object(Format const& format);

/// On one line, everything beyond ASCII escaped.
[[nodiscard]] std::string compact_text(Json const& json);

}  // namespace textimport
