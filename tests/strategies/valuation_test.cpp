// SPDX-License-Identifier: MIT
//
// From the numbers of fields that lines have, and from the fields, to the score of a strategy.
#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using support::show;
using textio::DelimitedStrategy;
using textio::parser::options;

/// The options of a cell: "detected" or "given", and if known the number of header lines.
options header_options(std::string const& cell) {
  bool const detected = cell.starts_with("detected");
  std::size_t const blank = cell.find(' ');
  return {.header_lines = blank == std::string::npos
                              ? textio::unknown_count
                              : support::Row{{cell.substr(blank + 1)}}.count(0),
          .detect_header_lines = detected};
}

TEST(Valuation, Scores) {
  support::for_each_row("strategies/scores.tsv", [](support::Row const& row) {
    options const how = header_options(row.cells.at(0));
    DelimitedStrategy strategy(how, {}, u',');
    auto fields = support::make_records(row.counts(1));
    strategy.field_array(std::make_unique<textio::FieldArray>(std::move(fields)));
    auto const& score = strategy.valuation();
    EXPECT_EQ(score.header_lines, strategy.header_lines());
    EXPECT_EQ(score.num_variables, strategy.num_variables());
    EXPECT_EQ(strategy.column_types().size(), score.num_variables);
    EXPECT_EQ(strategy.detects_header_lines(), how.detect_header_lines);
    EXPECT_EQ(std::to_string(score.typical_fields) + ' ' + show(score.mean_deviation) + ' ' +
                  show(score.data_variation) + ' ' + support::show_count(score.header_lines) + ' ' +
                  show({score.num_variables, score.num_records}),
              row.cells.at(2));
  });
}

TEST(Valuation, GetDataVariation) {
  DelimitedStrategy strategy(options{}, {}, u',');
  support::for_each_row("strategies/data_variation.tsv", [&strategy](support::Row const& row) {
    strategy.header_lines(row.count(1));
    EXPECT_EQ(show(strategy.get_data_variation(row.counts(0))), row.cells.at(2));
  });
}

TEST(Valuation, NumberOfVariablesIsHeldIn32Bits) {
  DelimitedStrategy const strategy(options{.header_lines = 1}, {}, u',');
  EXPECT_EQ(strategy.get_number_of_variables({9}), 1U);
  EXPECT_EQ(strategy.get_number_of_variables({9, 0, 3, 2}), 3U);
  EXPECT_EQ(strategy.get_number_of_variables({9, 0x1'0000'0005, 3}), 5U);
}

TEST(Valuation, IsComputedOnce) {
  DelimitedStrategy strategy(options{}, {}, u',');
  strategy.field_array(std::make_unique<textio::FieldArray>(support::make_records({2, 2})));
  EXPECT_EQ(strategy.valuation().num_records, 2U);
  strategy.field_array(std::make_unique<textio::FieldArray>(support::make_records({3, 3, 3, 0})));
  EXPECT_EQ(strategy.valuation().num_records, 2U);
  EXPECT_EQ(strategy.field_array()->num_records(), 4U);
}

TEST(Valuation, ColumnsOfNoSample) {
  DelimitedStrategy strategy(options{}, {}, u',');
  strategy.inspect_datatypes();
  EXPECT_TRUE(strategy.has_inspected_columns());
  EXPECT_EQ(strategy.column_types(), std::vector<unsigned char>{5}) << "undecided";
}

/// The code of a column of three such values.
unsigned char code_of_column(std::u16string_view const value, char16_t const leading_character) {
  options const how{.header_lines = 0, .detect_header_lines = false};
  DelimitedStrategy strategy(how, {.leading_character = leading_character}, u',');
  textio::Field const field(value);
  auto fields = std::make_unique<textio::FieldArray>();
  for (int i = 0; i < 3; ++i) {
    fields->append_record(std::span(&field, 1));
  }
  strategy.field_array(std::move(fields));
  strategy.valuation();
  return strategy.column_types().front();
}

TEST(Valuation, LeadingCharacterIsDroppedWhereOneIsGiven) {
  EXPECT_EQ(code_of_column(u"#1", u'#'), 1) << "a number";
  EXPECT_EQ(code_of_column(u"##1", u'#'), 2) << "a text";
  EXPECT_EQ(code_of_column(u"\uFFFF1", 0xFFFF), 2) << "no leading character, but a unit like it";
}

TEST(Valuation, ColumnTypes) {
  support::for_each_row("strategies/column_types.tsv", [](support::Row const& row) {
    auto const types = support::record_of<textio::GenericStrategy::TypeAnalyzerOptions>(row.with);
    auto const strategy =
        std::make_shared<DelimitedStrategy>(header_options(row.cells.at(0)), types, u',');
    std::u16string const text = row.text(1);
    auto const& score =
        textio::evaluate_strategy(strategy, textio::Field(text), textio::unknown_count);
    std::string shown;
    for (unsigned char const code : strategy->column_types()) {
      shown += std::to_string(code) + ' ';
    }
    EXPECT_EQ(shown + "| " + std::to_string(score.typed_columns) +
                  std::to_string(score.date_columns) + std::to_string(score.numeric_columns) +
                  std::to_string(score.datetime_columns) + std::to_string(score.delimiter_columns) +
                  (strategy->has_inspected_columns() ? "" : " not inspected"),
              row.cells.at(2));
  });
}

}  // namespace
