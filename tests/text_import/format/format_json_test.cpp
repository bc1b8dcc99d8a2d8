// SPDX-License-Identifier: MIT
#include "text_import/format/format_json.hpp"

#include <cstddef>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/table.hpp"
#include "tests/text_import/format/made_formats.hpp"
#include "text_import/format/format_members_internal.hpp"

namespace textimport {
namespace {

/// Stands for a value of any type where only its place counts.
struct AnyValue {
  template <class T>
  operator T() const;  // NOLINT(google-explicit-constructor): that is what it is for
};

template <class Part, std::size_t... Places>
constexpr bool takes(std::index_sequence<Places...> /*places*/) {
  return requires {
    Part{(static_cast<void>(Places), AnyValue{})...};
  };
}

/// The number of members of a plain record.
template <class Part, std::size_t Number = 0>
constexpr std::size_t num_members() {
  if constexpr (takes<Part>(std::make_index_sequence<Number + 1>())) {
    return num_members<Part, Number + 1>();
  } else {
    return Number;
  }
}

template <class Part>
class FormatPart : public testing::Test {};

using parts = testing::Types<LineEndingCounts, SourceFormat, LayoutFormat, QuotingFormat,
                             CommentFormat, MarkFormat, DataStart, DataEnd, Region, NumberFormat,
                             DateFormat, Extent, Column, Format>;
TYPED_TEST_SUITE(FormatPart, parts);

TYPED_TEST(FormatPart, has_no_member_that_json_leaves_out) {
  TypeParam part;
  std::size_t visited = 0;
  auto const count = [&visited](char const* /*name*/, auto& /*member*/) { ++visited; };
  visit_members(count, part);
  EXPECT_EQ(visited, num_members<TypeParam>());
}

TEST(format_json, comes_back_as_it_was) {
  constexpr std::uint64_t num_formats = 4000;
  std::size_t num_different = 0;
  Format last;
  for (std::uint64_t seed = 0; seed < num_formats; ++seed) {
    Format const format = made::random_format(seed);
    JsonForm const form = seed % 2 == 0 ? JsonForm::Indented : JsonForm::Compact;
    FormatParse const parse = format_from_json(to_json(format, form));
    ASSERT_TRUE(parse.format) << seed << ": " << parse.error;
    ASSERT_TRUE(*parse.format == format) << to_json(format);
    num_different += format == last ? 0U : 1U;
    last = format;
  }
  EXPECT_EQ(num_different, num_formats);
}

TEST(format_json, is_written_for_people_and_on_one_line_of_ascii) {
  std::ifstream file(TFD_TESTS_FOLDER "/text_import/format/usual.format.json");
  std::string const expected(std::istreambuf_iterator<char>(file), {});
  Format const format = made::usual_format();
  EXPECT_EQ(to_json(format), expected);
  std::string const compact = to_json(format, JsonForm::Compact);
  for (char const c : compact) {
    EXPECT_TRUE(c >= ' ' && c <= '~') << compact;
  }
}

TEST(format_json, has_defaults_but_for_schema_and_layout) {
  FormatParse const parse =
      format_from_json(R"({"schema": 2, "layout": {"layout": "lines"}, "columns": [{}]})");
  ASSERT_TRUE(parse.format) << parse.error;
  Format expected;
  expected.columns.resize(1);
  EXPECT_TRUE(*parse.format == expected);
}

TEST(format_json, says_what_is_wrong_and_where) {
  auto const sound = nlohmann::json::parse(to_json(made::usual_format()));
  support::for_each_row("text_import/format/wrong_formats.tsv", [&](support::Row const& row) {
    nlohmann::json operation{{"op", row.cells.at(0)}, {"path", row.cells.at(1)}};
    if (row.cells.at(0) != "remove") {
      operation["value"] = row.value(2);
    }
    FormatParse const parse =
        format_from_json(sound.patch(nlohmann::json::array({operation})).dump());
    EXPECT_EQ(parse.error, row.cells.at(3));
    EXPECT_EQ(parse.format.has_value(), row.cells.at(3).empty());
  });
}

TEST(format_json, says_where_a_text_is_no_json) {
  support::for_each_row("text_import/format/no_json.tsv", [](support::Row const& row) {
    FormatParse const parse = format_from_json(row.cells.at(0));
    EXPECT_FALSE(parse.format);
    EXPECT_TRUE(parse.error.starts_with(row.cells.at(1))) << parse.error;
  });
  EXPECT_FALSE(format_from_json(std::string(1'000'000, '[')).format);
}

/// One of both, never none.
void expect_an_end(std::string const& text) {
  FormatParse const parse = format_from_json(text);
  EXPECT_NE(parse.format.has_value(), !parse.error.empty()) << text;
  if (parse.format) {
    EXPECT_TRUE(format_from_json(to_json(*parse.format)).format == parse.format) << text;
  }
}

TEST(format_json, survives_cut_and_changed_texts) {
  std::mt19937_64 random(1);
  for (std::uint64_t seed = 0; seed < 100; ++seed) {
    std::string const text = to_json(made::random_format(seed), JsonForm::Compact);
    for (int change = 0; change < 20; ++change) {
      expect_an_end(text.substr(0, random() % text.size()));
      std::string changed = text;
      changed[random() % text.size()] = static_cast<char>(random() % 256);
      expect_an_end(changed);
    }
  }
}

/// Puts each of some values in the place of each member, on every level.
TEST(format_json, survives_members_of_any_type) {
  auto const flat = nlohmann::json::parse(to_json(made::random_format(11))).flatten();
  std::vector<nlohmann::json> const values{nullptr,
                                           true,
                                           0,
                                           -1,
                                           1.5,
                                           1e300,
                                           "",
                                           "x",
                                           "lines",
                                           nlohmann::json::array(),
                                           nlohmann::json::array({1}),
                                           nlohmann::json::object(),
                                           {{"utf16", {65, 65536}}}};
  for (auto const& [path, member] : flat.items()) {
    for (nlohmann::json const& value : values) {
      auto changed = flat.unflatten();
      for (nlohmann::json::json_pointer place(path); !place.empty();
           place = place.parent_pointer()) {
        changed[place] = value;
        expect_an_end(changed.dump());
      }
    }
  }
}

}  // namespace
}  // namespace textimport
