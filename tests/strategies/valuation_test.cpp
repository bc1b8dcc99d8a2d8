// SPDX-License-Identifier: MIT
//
// From the numbers of fields that lines have to the score of a strategy.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using support::show;
using textio::DelimitedStrategy;
using textio::unknown_count;
using textio::parser::options;
using Counts = std::vector<std::size_t>;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

struct Header {
  bool detect;
  std::size_t lines;
};

constexpr Header detected{true, unknown_count};

/// The score of a reading with these field counts, as
///   typical mean_deviation data_variation header_lines num_variables num_records
std::string score(Counts const& counts, Header const& header, char16_t const delimiter = u',') {
  options const how{.header_lines = header.lines, .detect_header_lines = header.detect};
  DelimitedStrategy strategy(how, {}, delimiter);
  strategy.field_array(std::make_unique<textio::FieldArray>(support::make_records(counts)));
  auto const& score = strategy.valuation();
  EXPECT_EQ(score.header_lines, strategy.header_lines());
  EXPECT_EQ(score.num_variables, strategy.num_variables());
  EXPECT_EQ(strategy.column_types().size(), score.num_variables);
  EXPECT_EQ(strategy.detects_header_lines(), header.detect);
  return std::to_string(score.typical_fields) + ' ' + show(score.mean_deviation) + ' ' +
         show(score.data_variation) + ' ' +
         (score.header_lines == unknown_count ? "unknown" : std::to_string(score.header_lines)) +
         ' ' + std::to_string(score.num_variables) + ' ' + std::to_string(score.num_records);
}

TEST(Valuation, HeaderLinesDetected) {
  for (auto const& [counts, expected] : support::Rows<Counts, std::string_view>{
           {{3, 3, 3, 3}, "3 0 0 0 3 4"},
           {{1, 5, 5, 5}, "5 1 0 1 5 4"},
           {{2, 0, 4, 4, 4, 9}, "4 0.5 0 2 9 6"},
           // empty records at the end do not count, those inside do
           {{2, 2, 0, 0}, "2 0 0 0 2 2"},
           {{0, 2, 0, 2, 0}, "2 0 0 1 2 4"},
           {Counts{}, "1 inf inf unknown 1 0"},
           {{0, 0}, "1 inf inf unknown 1 0"},
           // one field throughout
           {{1, 1, 1}, "1 inf inf 0 1 3"},
           {{1, 0, 1}, "1 inf inf 1 1 3"},
           {{1, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7}, "1 inf inf 2 1 14"},
           {{1, 1, 0, 7}, "7 4 0 3 7 4"},
           // the header moves past empty lines and lines of one field
           {{3, 0, 1, 6, 6, 6, 6}, "6 1.33333 0 3 6 7"},
           {{3, 1, 6, 1, 6, 6, 6, 6, 6}, "6 1.44444 0.714286 2 6 9"},
           // behind the header a variation of 1 is trusted, a larger one is not
           {{12, 5, 8, 5, 8, 5, 7, 5, 5}, "5 1.66667 1 1 8 9"},
           {{12, 5, 8, 5, 8, 5, 8, 5, 5}, "5 1.77778 1.77778 0 12 9"},
           {{1, 12, 5, 8, 5, 8, 5, 9, 5, 5}, "5 2.1 1.88889 1 12 10"},
       }) {
    EXPECT_EQ(score(counts, detected), expected) << show(counts);
  }
}

TEST(Valuation, HeaderLinesGiven) {
  for (auto const& [header, counts, expected] : support::Rows<Header, Counts, std::string_view>{
           {{false, 1}, {2, 3, 3}, "3 0.333333 0 1 3 3"},
           {{false, 0}, {2, 3, 3}, "3 0.333333 0.333333 0 3 3"},
           {{false, 2}, {9, 2, 3, 3, 1}, "3 1.75 0 2 3 5"},
           {{false, 1}, {2, 0, 3, 5, 3}, "3 0.75 0.666667 1 5 5"},
           // one field lines at the start are data like any other
           {{false, 0}, {1, 3, 3}, "3 0.666667 0.666667 0 3 3"},
           {{false, 1}, {1, 1, 1}, "1 inf inf 1 1 3"},
           {{false, 3}, {2, 2, 2}, "2 0 inf 3 1 3"},
           {{false, 7}, {2, 2, 2}, "2 0 inf 7 1 3"},
           // unknown, and yet not to be detected: found, but not moved past empty lines
           {{false, unknown_count}, {2, 0, 4, 4, 4}, "4 0.5 0 1 4 5"},
           {{false, unknown_count}, {1, 1}, "1 inf inf unknown 1 2"},
           // to be detected, and yet known
           {{true, 2}, {3, 3, 3, 3}, "3 0 0 2 3 4"},
           {{true, 0}, {1, 5, 9, 5, 9, 5}, "5 2 2 1 9 6"},
           {{true, 9}, {1, 1, 1}, "1 inf inf 0 1 3"},
       }) {
    EXPECT_EQ(score(counts, header), expected) << show(counts);
  }
}

TEST(Valuation, GetDataVariation) {
  DelimitedStrategy strategy(options{}, {}, u',');

  for (auto const& [header_lines, expected] : support::Rows<std::size_t, std::string_view>{
           {0, "inf"}, {1, "1"}, {2, "0.5"}, {4, "inf"}, {5, "inf"}}) {
    strategy.header_lines(header_lines);
    EXPECT_EQ(show(strategy.get_data_variation({4, 2, 1, 0})), expected) << header_lines;
  }
}

TEST(Valuation, NumberOfVariablesIsHeldIn32Bits) {
  DelimitedStrategy strategy(options{.header_lines = 1}, {}, u',');
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

/// The codes of the columns and then the counters: typed, date, numeric, datetime, delimiter.
std::string types(std::u16string_view const text, Header const& header, TypeOptions const& how) {
  options const parsing{.header_lines = header.lines, .detect_header_lines = header.detect};
  auto const strategy = std::make_shared<DelimitedStrategy>(parsing, how, u',');
  auto const& score =
      textio::evaluate_strategy(strategy, textio::Field(text), textio::unknown_count);
  std::string shown;
  for (unsigned char const code : strategy->column_types()) {
    shown += std::to_string(code) + ' ';
  }
  return shown + "| " + std::to_string(score.typed_columns) + std::to_string(score.date_columns) +
         std::to_string(score.numeric_columns) + std::to_string(score.datetime_columns) +
         std::to_string(score.delimiter_columns) +
         (strategy->has_inspected_columns() ? "" : " not inspected");
}

TEST(InspectDatatypes, WalksFromTheLastRecordUp) {
  Header const none{false, 0};

  for (auto const& [header, text, expected] :
       support::Rows<Header, std::u16string_view, std::string_view>{
           {none, u"a,b\n1,x\n", "1 2 | 20100"},
           // the first record behind the header lines is not inspected
           {none, u"1,2\n", "5 5 | 00000"},
           {{false, 1}, u"a,b\n1,2\n,x\n", "5 2 | 10000"},
           {{false, 1}, u"a,b\n1,2\n7,\n,x\n", "1 2 | 20100"},
           {{false, 9}, u"a,b\n1,2\n", "5 | 00000"},
           // the last value decides; a short record says nothing
           {none, u"h,h\n1,1\nx,y\n", "2 2 | 20000"},
           {none, u"h,h\n1,1\nx\n", "1 1 | 20200"},
           {none, u"h,h\n1,1\nx,y,z\n", "2 2 2 | 30000"},
           {none, u"h,h,h\n1,,1\n, ,x\n", "1 5 2 | 20100"},
           {none, u"h,h,h,h,h,h,h,h\n2024-01-05,10:30,1:2:3,0x1,0b1,NaT,|,2024-01-05 10:30\n",
            "7 11 8 9 10 3 12 3 | 83021"},
           {detected, u"h\nh\nh\n", "5 | 00000 not inspected"},
           {detected, u"", "5 | 00000 not inspected"},
       }) {
    EXPECT_EQ(types(text, header, {}), expected) << show(text);
  }
}

TEST(InspectDatatypes, CleansTheFields) {
  Header const none{false, 0};
  std::u16string_view const text = u"h,h,h\n $5,NA, -\n";
  TypeOptions how;
  EXPECT_EQ(types(text, none, how), "2 2 2 | 30000");
  how.leading_character = u'$';
  EXPECT_EQ(types(text, none, how), "1 2 2 | 30100");
  how.missing_values = {u"NA", u"-", u"5"};
  EXPECT_EQ(types(text, none, how), "1 2 2 | 30100");
  how.use_missing_values = true;
  EXPECT_EQ(types(text, none, how), "5 5 5 | 00000");
  how.trim_whitespace = false;
  EXPECT_EQ(types(text, none, how), "2 5 2 | 20000");
  how = {.leading_character = u'$'};
  EXPECT_EQ(types(u"h,h,h\n$$5,$,5$\n", none, how), "2 5 2 | 20000");
}

}  // namespace
