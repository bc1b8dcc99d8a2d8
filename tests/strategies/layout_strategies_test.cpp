// SPDX-License-Identifier: MIT
//
// How each layout adjusts its copy of the caller's options, and the header-line setter.
#include "text_format_detection/strategies/layout_strategies.hpp"

#include <gtest/gtest.h>

#include "tests/support/text.hpp"

namespace {

using support::show;
using textio::DelimitedStrategy;
using textio::FixedWidthStrategy;
using textio::GenericStrategy;
using textio::LineReaderStrategy;
using textio::SpaceAlignedStrategy;
using textio::unknown_count;
using textio::parser::options;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

/// Everything that a constructor may adjust: delimiters, whitespace and widths, the rules for
/// consecutive, leading and trailing delimiters, empty lines and partial fields as numbers.
std::string describe(GenericStrategy& strategy) {
  options const& own = strategy.options();
  auto const number = [](auto const rule) { return std::to_string(static_cast<int>(rule)); };
  std::string text = "mode " + number(strategy.mode()) + " reader " + number(own.reader_kind);
  for (std::u16string const& delimiter : own.delimiters) {
    text += " <" + show(delimiter) + ">";
  }
  EXPECT_EQ(own.whitespace == strategy.type_options().whitespace,
            own.reader_kind == textio::enums::ReaderKind::Delimited);
  return text + " [" + show(own.whitespace) + "] widths " + show(own.column_widths) + " rules " +
         number(own.consecutive_delimiters_rule) + number(own.leading_delimiters_rule) +
         number(own.trailing_delimiters_rule) + number(own.empty_lines) +
         number(own.partial_field_rule) + (own.auxiliary_flag ? " auxiliary" : "") +
         (strategy.is_blank_delimited() ? " blank" : "") + " header " +
         (strategy.detects_header_lines() ? "detected " : "given ") +
         std::to_string(strategy.header_lines()) + " rank " + show(strategy.valuation().prior_rank);
}

/// Options with every rule at Error.
options strict_options() {
  using namespace textio::enums;  // NOLINT(google-build-using-namespace)
  return {.delimiters = {u";", u"\t"},
          .whitespace = u" ;\t, ",
          .column_widths = {9},
          .header_lines = 3,
          .reader_kind = ReaderKind::Unused,
          .consecutive_delimiters_rule = ConsecutiveDelimitersRule::Error,
          .empty_lines = EmptyLineRule::Error,
          .leading_delimiters_rule = LeadingDelimitersRule::Error,
          .trailing_delimiters_rule = TrailingDelimitersRule::Error,
          .partial_field_rule = PartialFieldRule::Error,
          .auxiliary_flag = true,
          .detect_header_lines = false};
}

TEST(LayoutStrategies, AdjustTheirCopyOfTheOptions) {
  options const strict = strict_options();
  options plain;
  plain.consecutive_delimiters_rule = textio::enums::ConsecutiveDelimitersRule::Join;
  plain.leading_delimiters_rule = textio::enums::LeadingDelimitersRule::Ignore;
  plain.trailing_delimiters_rule = textio::enums::TrailingDelimitersRule::Ignore;
  TypeOptions const types{.whitespace = u"abc"};
  std::string const rest = " header given 3 rank ";

  DelimitedStrategy own_delimiters(strict, types);
  EXPECT_EQ(describe(own_delimiters),
            "mode 0 reader 0 <;> <\\t> [ , ] widths 9 rules 00015" + rest + "inf");
  DelimitedStrategy one(plain, types, u',');
  EXPECT_EQ(describe(one), "mode 0 reader 0 <,> [ \\t] widths  rules 11110 header detected " +
                               std::to_string(unknown_count) + " rank 0");
  DelimitedStrategy list(strict, types, std::vector<std::u16string>{u"\r\n", u",", u";;"});
  EXPECT_EQ(describe(list),
            "mode 0 reader 0 <\\r\\n> <,> <;;> [ ;\\t ] widths 9 rules 00015" + rest + "inf");
  SpaceAlignedStrategy aligned(strict, types);
  EXPECT_EQ(describe(aligned),
            "mode 1 reader 0 < > <\\t> [;,] widths 9 rules 11115 blank" + rest + "3.5");
  std::vector<std::size_t> widths{1, 2};
  FixedWidthStrategy fixed(strict, types, std::move(widths));
  EXPECT_EQ(describe(fixed),
            "mode 2 reader 1 <;> <\\t> [ ;\\t, ] widths 1 2 rules 22210 auxiliary" + rest + "inf");
  EXPECT_TRUE(widths.empty());  // NOLINT(bugprone-use-after-move): moved from, and left empty
  LineReaderStrategy lines(strict, types);
  EXPECT_EQ(describe(lines),
            "mode 3 reader 3 <;> <\\t> [ ;\\t, ] widths 9 rules 00215 auxiliary "
            "header given 0 rank inf");
}

TEST(LayoutStrategies, PriorRankOfADelimiter) {
  for (auto const& [delimiters, rank, blank] :
       support::Rows<std::vector<std::u16string>, std::string_view, bool>{
           {{u","}, "0", false},
           {{u"\t"}, "1", false},
           {{u";"}, "2", false},
           {{u" "}, "3", true},
           {{u"|"}, "1.84467e+19", false},
           {{u",", u";"}, "inf", false},
           {{u",,"}, "inf", false},
           {{u"  "}, "inf", false},
           {{}, "inf", false}}) {
    DelimitedStrategy strategy(options{}, {}, delimiters);
    EXPECT_EQ(show(strategy.valuation().prior_rank), rank);
    EXPECT_EQ(strategy.is_blank_delimited(), blank) << rank;
  }
}

TEST(LayoutStrategies, HeaderLinesThatAreGiven) {
  DelimitedStrategy delimited(options{}, {}, u',');
  EXPECT_FALSE(delimited.header_lines(5));
  EXPECT_FALSE(delimited.detects_header_lines());
  EXPECT_EQ(delimited.header_lines(), 5U);
  EXPECT_TRUE(delimited.header_lines(unknown_count));
  EXPECT_TRUE(delimited.detects_header_lines());
  LineReaderStrategy lines(options{.header_lines = 2}, {});
  EXPECT_FALSE(lines.header_lines(5));
  EXPECT_FALSE(lines.header_lines(unknown_count));
  EXPECT_EQ(lines.header_lines(), 0U);
  EXPECT_FALSE(lines.detects_header_lines());
}

}  // namespace
