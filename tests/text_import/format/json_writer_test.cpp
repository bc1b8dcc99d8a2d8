// SPDX-License-Identifier: MIT
//
// The writer against a JSON library: what it writes on one line is what the library makes of the
// same values, and what it writes indented reads back as the same.
#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "text_import/format/json_writer_internal.hpp"

namespace textimport {
namespace {

using Json = nlohmann::ordered_json;
using Layout = JsonWriter::Layout;

void write(JsonWriter& writer, Json const& json) {
  if (json.is_object()) {
    writer.begin_object();
    for (auto const& [name, member] : json.items()) {
      writer.key(name);
      write(writer, member);
    }
    writer.end_object();
  } else if (json.is_array()) {
    auto const is_structured = [](Json const& item) { return item.is_structured(); };
    bool const is_nested = std::ranges::any_of(json, is_structured);
    writer.begin_list(is_nested ? JsonWriter::List::OnLines : JsonWriter::List::OnOneLine);
    for (Json const& item : json) {
      write(writer, item);
    }
    writer.end_list();
  } else if (json.is_string()) {
    writer.value(std::string_view(json.get_ref<std::string const&>()));
  } else if (json.is_boolean()) {
    writer.value(json.get<bool>());
  } else if (json.is_number_float()) {
    writer.value(json.get<double>());
  } else if (json.is_number_unsigned()) {
    writer.value(json.get<std::uint64_t>());
  } else if (json.is_number()) {
    writer.value(json.get<std::int64_t>());
  } else {
    writer.value(nullptr);
  }
}

std::string written(Json const& json, Layout const layout) {
  JsonWriter writer(layout);
  write(writer, json);
  return std::move(writer).take();
}

std::string dumped(Json const& json, Layout const layout) {
  return json.dump(-1, ' ', layout == Layout::OneLine, Json::error_handler_t::replace);
}

/// Bytes that are mostly pieces of UTF-8, sound or not, and what must be escaped.
std::string random_bytes(std::mt19937_64& random) {
  constexpr std::string_view bytes =
      "aZ \"\\/\b\t\n\f\r\x01\x1f\x7f\x80\x8f\x90\x9f\xa0\xbf\xc0\xc2\xe0\xe2\xed\xf0\xf1\xf4\xf5";
  std::string text;
  for (auto length = random() % 12; length > 0; --length) {
    text += bytes[random() % bytes.size()];
  }
  return random() % 4 == 0 ? text + "\u00e4\u20ac\U0001F600" : text;
}

Json random_value(std::mt19937_64& random, std::size_t const depth) {
  constexpr double steps = 1e4;
  switch (random() % (depth == 0 ? 6 : 8)) {
    case 0:
      return nullptr;
    case 1:
      return random() % 2 == 0;
    case 2:
      return random() >> (random() % 64);
    case 3:
      return -static_cast<std::int64_t>(random() >> (1 + random() % 63));
    case 4:
      return std::round(static_cast<double>(random() >> (24 + random() % 40))) / steps;
    case 5:
      return random_bytes(random);
    case 6: {
      Json list = Json::array();
      for (auto length = random() % 4; length > 0; --length) {
        list.push_back(random_value(random, depth - 1));
      }
      return list;
    }
    default: {
      Json object = Json::object();
      for (auto length = random() % 4; length > 0; --length) {
        object["key" + std::to_string(length)] = random_value(random, depth - 1);
      }
      return object;
    }
  }
}

TEST(json_writer, writes_what_a_json_library_writes) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 40'000; ++i) {
    Json const json = random_value(random, 4);
    std::string const line = dumped(json, Layout::OneLine);
    std::string const own = written(json, Layout::OneLine);
    // The library's doubles are not always the shortest that read back as the same.
    ASSERT_TRUE(own == line || (own.size() < line.size() && Json::parse(own) == Json::parse(line)))
        << own << "\n"
        << line;
    ASSERT_EQ(Json::parse(written(json, Layout::Indented)), Json::parse(own));
    Json const text = random_bytes(random);
    ASSERT_EQ(written(text, Layout::Indented), dumped(text, Layout::Indented));
  }
}

TEST(json_writer, puts_lists_of_plain_values_on_one_line) {
  Json const json = Json::parse(
      R"({"none": [], "empty": {}, "numbers": [1, 2.0, null], "objects": [{"a": [true]}, {"b": ""}]})");
  EXPECT_EQ(written(json, Layout::Indented), R"({
  "none": [],
  "empty": {},
  "numbers": [1, 2.0, null],
  "objects": [
    {
      "a": [true]
    },
    {
      "b": ""
    }
  ]
})");
}

}  // namespace
}  // namespace textimport
