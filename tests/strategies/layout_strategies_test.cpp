// SPDX-License-Identifier: MIT
//
// How each layout adjusts its copy of the caller's options, and the header-line setter.
#include "text_format_detection/strategies/layout_strategies.hpp"

#include <gtest/gtest.h>

#include "tests/support/strategies.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"

namespace {

using support::show;
using textio::DelimitedStrategy;
using textio::GenericStrategy;
using textio::LineReaderStrategy;
using textio::unknown_count;
using textio::parser::options;

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
         support::show_count(strategy.header_lines()) + " rank " +
         show(strategy.valuation().prior_rank);
}

TEST(LayoutStrategies, AdjustTheirCopyOfTheOptions) {
  support::for_each_row("strategies/layouts.tsv", [](support::Row const& row) {
    auto const strategy =
        support::make_strategy(row.cells.at(0), support::record_of<options>(row.with),
                               {.whitespace = u"abc"}, row.value(1));
    EXPECT_EQ(describe(*strategy), row.cells.at(2));
  });
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
