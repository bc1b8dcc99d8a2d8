// SPDX-License-Identifier: MIT
//
// The outcomes of a decision and their reasons, and what a call leaves behind.
#include "text_format_detection/detection/strategy_selector.hpp"

#include <gtest/gtest.h>

#include "tests/support/decision.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"

namespace {

using textio::Field;
using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::StrategySelector;
using textio::parser::options;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

/// How many records of the text may be read, beside the options.
struct How {
  std::size_t records = 100;
};

template <class Visit>
void visit_members(How& how, Visit const& visit) {
  visit("records", how.records);
}

TEST(StrategySelector, OutcomesAndReasons) {
  TypeOptions const types;
  support::for_each_row("detection/decisions.tsv", [&types](support::Row const& row) {
    options how;
    How limits;
    support::read_members(row.with, how, limits);
    std::u16string const text = row.text(0);
    StrategySelector selector(how, types);
    DetectionReport report;
    auto const answer = selector.pick_strategy(Field(text), limits.records, report);
    EXPECT_EQ(support::show_reason(report) + "; " + support::show_layout(*answer) + "; " +
                  std::to_string(answer->header_lines()) + "; " + support::show_rules(report),
              row.cells.at(1));
    auto const unreported = selector.pick_strategy(Field(text), limits.records);
    EXPECT_EQ(support::show_decision(*unreported, {}), support::show_decision(*answer, {}));
    EXPECT_TRUE(answer->is_sampled());
    EXPECT_EQ(answer->is_evaluated(), report.outcome != Outcome::CommaFallback);
    EXPECT_EQ(report.winner.has_value(), report.outcome == Outcome::Candidate);
    if (report.winner) {
      EXPECT_EQ(report.candidates.at(*report.winner), answer);
    }
    EXPECT_EQ(report.outcome == Outcome::LineReader, answer == report.line_reader);
  });
}

TEST(StrategySelector, CommaFallback) {
  TypeOptions const types;
  options const how{.delimiters = {u";", u"|"},
                    .header_lines = 2,
                    .num_variables = 7,
                    .consecutive_delimiters_rule = textio::enums::ConsecutiveDelimitersRule::Join,
                    .auxiliary_flag = true};
  auto const answer =
      StrategySelector(how, types).pick_strategy(Field(u"x\n10:30,,a\n11:45\n"), 100);
  // with commas this would be no date: the last line is
  options const& own = answer->options();
  EXPECT_EQ(support::show_layout(*answer), "delimited <,>");
  EXPECT_EQ(own.header_lines, 0U);
  EXPECT_EQ(own.num_variables, 1U);
  EXPECT_FALSE(own.auxiliary_flag);
  EXPECT_FALSE(own.detect_header_lines);
  EXPECT_FALSE(answer->detects_header_lines());
  EXPECT_EQ(support::show(*answer->field_array()), "x / 10:30|a / 11:45");
  EXPECT_EQ(answer->num_variables(), textio::unknown_count);
}

}  // namespace
