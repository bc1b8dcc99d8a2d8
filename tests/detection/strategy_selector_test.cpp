// SPDX-License-Identifier: MIT
//
// The outcomes of a decision and their reasons, and what a call leaves behind.
#include "text_format_detection/detection/strategy_selector.hpp"

#include <gtest/gtest.h>

#include "tests/support/decision.hpp"
#include "tests/support/text.hpp"

namespace {

using textio::Field;
using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::StrategySelector;
using textio::parser::options;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

struct PickRow {
  std::u16string_view text;
  options how;
  std::string_view expected;  // reason, layout, header lines, rules
  std::size_t records = 100;
};

TEST(StrategySelector, OutcomesAndReasons) {
  TypeOptions const types;
  for (auto const& [text, how, expected, records] : {
           PickRow{u"", {}, "no records; lines; 0; "},
           {u"\n \n", {}, "no records; lines; 0; "},
           {u"a,b\n", {}, "no records; lines; 0; ", 0},
           {u"\uFFFFa,b\n", {}, "no records; lines; 0; "},
           {u"abc\ndef\n", {}, "no candidates; lines; 0; "},
           {u"a,b\n,,,,,,,,\nc,d\n,,,,,,,,\ne,f\n", {}, "no candidates; lines; 0; "},
           {u"x\n10:30\n11:45\n", {}, "dates; delimited <,>; 0; "},
           {u"x\n2024-01-05\n2024-01-06\n", {}, "dates; delimited <,>; 0; "},
           {u"x\n2024-01-05 10:30:00\n2024-01-06 10:30:00\n", {}, "dates; delimited <,>; 0; "},
           {u"a,b\nc,d\n", {}, "single; delimited <,>; 0; "},
           {u"t\na,b\nc,d\n", {}, "single; delimited <,>; 1; "},
           {u"a,b;c\nd,e;f\n",
            {},
            "ranked; delimited <,>; 0; dates 0 1, variation 0 1, class_value 0 1, header_lines 0 "
            "1, "
            "non_empty 0 1, priors_rank 0"},
           {u"a,b;c;d\nd,e;f;g\n",
            {.num_variables = 3, .ignore_num_variables = false},
            "ranked; delimited <;>; 0; numvariables 1"},
           {u"a|b_c\nd|e_f\n",
            {.detect_header_lines = false},
            "tie; delimited <,>; 0; dates 0 1, variation 0 1, class_value 0 1, non_empty 0 1, "
            "priors_rank 0 1"},
           {u"a;b_1\nc;d_2\ne;f_3",
            {.delimiters = {u"|"}, .header_lines = 1, .detect_header_lines = false},
            "ranked; delimited <_>; 1; dates 0 1, variation 0 1, class_value 1"},
       }) {
    StrategySelector selector(how, types);
    DetectionReport report;
    auto const answer = selector.pick_strategy(Field(text), records, report);
    EXPECT_EQ(support::show_reason(report) + "; " + support::show_layout(*answer) + "; " +
                  std::to_string(answer->header_lines()) + "; " + support::show_rules(report),
              expected)
        << support::show(text);
    EXPECT_EQ(support::show_layout(*selector.pick_strategy(Field(text), records)),
              support::show_layout(*answer));
    EXPECT_TRUE(answer->is_sampled());
    bool const is_fallback = report.outcome == Outcome::CommaFallback;
    EXPECT_EQ(answer->is_evaluated(), !is_fallback) << support::show(text);
    EXPECT_EQ(report.winner.has_value(), report.outcome == Outcome::Candidate);
    if (report.winner) {
      EXPECT_EQ(report.candidates.at(*report.winner), answer);
    }
    EXPECT_EQ(report.outcome == Outcome::LineReader, answer == report.line_reader);
    EXPECT_EQ(selector.delimiters(), how.delimiters);
    EXPECT_EQ(selector.header_lines(), how.header_lines);
  }
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

TEST(StrategySelector, RecordLimit) {
  TypeOptions const types;
  options const given{.header_lines = 1, .detect_header_lines = false};
  options const detected;
  std::u16string_view const text = u"t\na,b\nc,d\ne,f\ng,h\n";
  auto const fields = [&](options const& how, std::size_t const n) {
    return support::show(
        *StrategySelector(how, types).pick_strategy(Field(text), n)->field_array());
  };
  EXPECT_EQ(fields(given, 2), "t / a|b / c|d");
  EXPECT_EQ(fields(detected, 3), "t / a|b / c|d");
  EXPECT_EQ(fields(detected, textio::unknown_count), "t / a|b / c|d / e|f / g|h");
}

}  // namespace
