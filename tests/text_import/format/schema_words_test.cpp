// SPDX-License-Identifier: MIT
//
// The words in docs/format.schema.json are those of the tables of words.
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "text_import/report/engine_words.hpp"

namespace textimport {
namespace {

template <class Enum>
void expect_words_in(nlohmann::json const& definitions, char const* const name) {
  std::vector<std::string> words;
  for (auto const& row : all_words<Enum>()) {
    words.emplace_back(row.word);
  }
  EXPECT_EQ(definitions.at(name).at("enum"), nlohmann::json(words)) << name;
}

TEST(format_schema, has_the_words_of_every_enumeration) {
  std::ifstream file(TFD_TESTS_FOLDER "/../docs/format.schema.json");
  auto const definitions = nlohmann::json::parse(file).at("$defs");
  expect_words_in<Origin>(definitions, "origin");
  expect_words_in<Layout>(definitions, "layout_kind");
  expect_words_in<textio::enums::StrategyMode>(definitions, "layout_kind");
  expect_words_in<ValueType>(definitions, "value_type");
  expect_words_in<DateOrder>(definitions, "date_order");
  expect_words_in<EpochUnit>(definitions, "epoch_unit");
  expect_words_in<QuoteEscape>(definitions, "quote_escape");
  expect_words_in<StartRule>(definitions, "start_rule");
  expect_words_in<EndRule>(definitions, "end_rule");
  expect_words_in<OddRowRule>(definitions, "odd_row_rule");
  expect_words_in<textio::enums::ConsecutiveDelimitersRule>(definitions, "consecutive_delimiters");
  expect_words_in<textio::enums::LeadingDelimitersRule>(definitions, "leading_delimiters");
  expect_words_in<textio::enums::TrailingDelimitersRule>(definitions, "trailing_delimiters");
  expect_words_in<textio::enums::EmptyLineRule>(definitions, "empty_lines");
  expect_words_in<textio::enums::PartialFieldRule>(definitions, "partial_fields");
  expect_words_in<LineRole>(definitions, "line_role");
  expect_words_in<Reason>(definitions, "reason");
  expect_words_in<BrokenRule>(definitions, "broken_rule");
  expect_words_in<textio::enums::ColumnType>(definitions, "engine_column_type");
  expect_words_in<textio::detection::Outcome>(definitions, "engine_outcome");
  expect_words_in<textio::detection::Reason>(definitions, "engine_reason");
  expect_words_in<textio::detection::CandidateFate>(definitions, "engine_fate");
  expect_words_in<textio::detection::RejectionClause>(definitions, "engine_rejection");
  expect_words_in<textio::detection::NotTried>(definitions, "engine_not_tried");
}

}  // namespace
}  // namespace textimport
