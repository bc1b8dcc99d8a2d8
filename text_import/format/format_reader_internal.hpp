// SPDX-License-Identifier: MIT
//
// From JSON values to the parts of a Format. The first thing that is wrong is kept as a sentence
// that begins with its place; after it nothing is read any more.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <nlohmann/json.hpp>

#include "text_import/format/format_members_internal.hpp"
#include "text_import/format/words.hpp"

namespace textimport {

/// A value, its place as a JSON pointer, and where the first error is put.
struct JsonPlace {
  nlohmann::json const& value;
  std::string path;
  std::string& error;

  /// Unless there is an error before it.
  void fail(std::string_view sentence) const;

  [[nodiscard]] JsonPlace at(nlohmann::json const& part, std::string_view name) const;
};

// Each reads the value into what it is to become, or fails and leaves that unchanged.
void read_value(JsonPlace const& place, std::u16string& text);
void read_value(JsonPlace const& place, std::string& bytes);
void read_value(JsonPlace const& place, char16_t& character);
void read_value(JsonPlace const& place, bool& flag);

/// The value as a whole number of at most `largest`; empty after a failure.
[[nodiscard]] std::optional<std::uint64_t> read_number(JsonPlace const& place,
                                                       std::uint64_t largest);

/// Fails for a value that is none of the words.
void fail_as_word(JsonPlace const& place, std::vector<std::string_view> const& allowed);

/// Fails for each member of an object that is not called one of these names.
void refuse_unknown_members(JsonPlace const& place, std::vector<std::string_view> const& names);

template <std::unsigned_integral Number>
void read_value(JsonPlace const& place, Number& number) {
  if (auto const value = read_number(place, std::numeric_limits<Number>::max())) {
    number = static_cast<Number>(*value);
  }
}

template <class Enum>
requires std::is_enum_v<Enum>

void read_value(JsonPlace const& place, Enum& value) {
  auto const* const word = place.value.get_ptr<std::string const*>();
  auto const known = word == nullptr ? std::nullopt : from_word<Enum>(*word);
  if (known) {
    value = *known;
    return;
  }
  std::vector<std::string_view> allowed;
  for (Word<Enum> const& row : all_words<Enum>()) {
    allowed.push_back(row.word);
  }
  fail_as_word(place, allowed);
}

template <class Part>
requires std::is_class_v<Part>
void read_value(JsonPlace const& place, Part& part);

template <class T>
void read_value(JsonPlace const& place, std::optional<T>& value) {
  if (place.value.is_null()) {
    value.reset();
  } else {
    read_value(place, value.emplace());
  }
}

template <class T>
void read_value(JsonPlace const& place, std::vector<T>& list) {
  if (!place.value.is_array()) {
    place.fail("a list is expected");
    return;
  }
  list.clear();
  for (nlohmann::json const& item : place.value) {
    std::string const position = std::to_string(list.size());
    read_value(place.at(item, position), list.emplace_back());
  }
}

/// Reads the members of an object that visit_members() names, and remembers the names.
class MemberReader {
 public:
  explicit MemberReader(JsonPlace const& object) : object_(object) {}

  template <class T>
  void operator()(char const* const name, T& member) {
    names_.emplace_back(name);
    auto const found = object_.value.find(name);
    if (found != object_.value.end() && object_.error.empty()) {
      read_value(object_.at(*found, name), member);
    }
  }

  [[nodiscard]] std::vector<std::string_view> const& names() const noexcept { return names_; }

 private:
  JsonPlace const& object_;
  std::vector<std::string_view> names_;
};

template <class Part>
requires std::is_class_v<Part>

void read_value(JsonPlace const& place, Part& part) {
  if (!place.value.is_object()) {
    place.fail("an object is expected");
    return;
  }
  MemberReader reader(place);
  visit_members(reader, part);
  refuse_unknown_members(place, reader.names());
}

}  // namespace textimport
