// SPDX-License-Identifier: MIT
//
// Values as JSON: how texts, bytes, characters, numbers, words and the parts of a Format are
// written, wherever they stand.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "text_import/format/format_members_internal.hpp"
#include "text_import/format/json_writer_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/format/words.hpp"

namespace textimport {

/// "schema": the number of the JSON form. It changes when a member is removed or changes its
/// meaning.
inline constexpr std::uint64_t json_schema = 2;

/// UTF-8 that need not come back: what is none is replaced.
void write_value(JsonWriter& writer, std::string_view text);

/// Bytes that must come back, whatever they are.
void write_value(JsonWriter& writer, std::string const& bytes);
void write_value(JsonWriter& writer, std::u16string const& text);

/// A character; null for 0.
void write_value(JsonWriter& writer, char16_t character);

/// A share, a score, a measure: to four decimals. Null for what is no such number: NaN, and what
/// stands for none by being infinite or beyond 1e15.
void write_value(JsonWriter& writer, double number);

/// True, false and whole numbers.
void write_value(JsonWriter& writer, std::integral auto const value) {
  writer.value(value);
}

template <class Enum>
requires std::is_enum_v<Enum>

void write_value(JsonWriter& writer, Enum const value) {
  writer.value(word_of(value));
}

template <class T>
void write_value(JsonWriter& writer, std::optional<T> const& value);

template <class T>
void write_value(JsonWriter& writer, std::vector<T> const& list);

template <class Part>
requires std::is_class_v<Part>
void write_value(JsonWriter& writer, Part const& part);

template <class T>
void write_member(JsonWriter& writer, std::string_view const name, T const& value) {
  writer.key(name);
  write_value(writer, value);
}

template <class T>
void write_value(JsonWriter& writer, std::optional<T> const& value) {
  if (value) {
    write_value(writer, *value);
  } else {
    writer.value(nullptr);
  }
}

/// How a list stands in an indented text: on one line, unless one of its items is an object.
template <class T>
[[nodiscard]] JsonWriter::List list_of(std::vector<T> const& items) {
  bool has_objects = std::is_class_v<T>;
  if constexpr (std::same_as<T, std::u16string>) {
    has_objects = std::ranges::any_of(items, has_lone_surrogate);
  }
  return has_objects ? JsonWriter::List::OnLines : JsonWriter::List::OnOneLine;
}

template <class T>
void write_value(JsonWriter& writer, std::vector<T> const& list) {
  writer.begin_list(list_of(list));
  for (T const& item : list) {
    write_value(writer, item);
  }
  writer.end_list();
}

/// The members of a part, without the brackets around them.
template <class Part>
void write_members(JsonWriter& writer, Part const& part) {
  auto const write = [&writer](char const* const name, auto const& member) {
    write_member(writer, name, member);
  };
  visit_members(write, part);
}

template <class Part>
requires std::is_class_v<Part>

void write_value(JsonWriter& writer, Part const& part) {
  writer.begin_object();
  write_members(writer, part);
  writer.end_object();
}

/// A list of objects, each of which `write(writer, item)` writes.
template <class Items, class Write>
void write_list(JsonWriter& writer, Items const& items, Write const& write) {
  writer.begin_list();
  for (auto const& item : items) {
    write(writer, item);
  }
  writer.end_list();
}

/// A Format as it is saved, "schema" in front.
void write_format(JsonWriter& writer, Format const& format);

/// Bytes in hexadecimal, two small digits each.
[[nodiscard]] std::string hexadecimal(std::string_view bytes);

}  // namespace textimport
