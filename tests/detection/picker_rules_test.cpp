// SPDX-License-Identifier: MIT
//
// The ranking: each rule on made-up scores, and the list of rules as it narrows candidates down.
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"

namespace {

using textio::StrategyValuation;
namespace rules = textio::detection::picker_rules;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

using Scores = rules::Valuations;

struct RuleRow {
  Scores scores;
  std::string_view survivors;
};

/// Applies the rule to all of the scores of each row.
void expect_survivors(rules::Rule const& rule, std::vector<RuleRow> const& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    auto const& [scores, survivors] = rows[row];
    rules::Candidates all(scores.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
      all[i] = i;
    }
    EXPECT_EQ(support::show(rule.apply(all, scores)), survivors) << rule.name() << ", row " << row;
  }
}

TEST(PickerRules, NumVariables) {
  expect_survivors(rules::numvariables(3),
                   {{{{.num_variables = 2}, {.num_variables = 3}, {.num_variables = 3}}, "1 2"},
                    {{{.num_variables = 2}, {.num_variables = 4}}, "0 1"}});
}

TEST(PickerRules, Dates) {
  expect_survivors(
      rules::dates(),
      {{{{}, {.date_columns = 1}, {.numeric_columns = 5}, {.datetime_columns = 1}}, "1 3"},
       {{{}, {.date_columns = -1}, {.datetime_columns = -1}}, "0 1 2"}});
}

TEST(PickerRules, Variation) {
  auto const score = [](double const variation, std::size_t const num_records = 1024) {
    return StrategyValuation{.data_variation = variation, .num_records = num_records};
  };
  expect_survivors(
      rules::variation(),
      {{{score(0.0), score(0.0005), score(0.5)}, "0 1"},
       {{score(0.0105), score(0.0), score(0.0099), score(0.01)}, "1 2"},
       {{score(2.15), score(2.0), score(2.21)}, "0 1"},
       {{score(0.0, 2), score(0.0009, 1u << 30u), score(0.0011, 1u << 30u)}, "0 1"},
       // one record and no variation, none finite, no record: nobody is within the tolerance
       {{score(0.0, 1), score(0.0, 1), score(5.0)}, "0 1 2"},
       {{score(infinity), score(infinity)}, "0 1"},
       {{score(0.0, 0), score(1.0)}, "0 1"},
       {{score(1.0, 0), score(1.05), score(1.2)}, "0 1"},
       {{score(infinity), score(0.5), score(nan)}, "1"},
       // a comparison with something that is not a number is never better
       {{score(nan), score(0.5)}, "0 1"}});
}

TEST(PickerRules, ClassValue) {
  constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
  expect_survivors(
      rules::class_value(),
      {{{{.typed_columns = 8, .numeric_columns = 8}, {.typed_columns = 1, .datetime_columns = 1}},
        "1"},
       {{{.typed_columns = 26}, {.typed_columns = 1, .datetime_columns = 1}}, "0"},
       {{{.typed_columns = 1, .date_columns = 1},
         {.typed_columns = 10},
         {.typed_columns = 4, .numeric_columns = 3}},
        "0 1 2"},
       {{{.typed_columns = 11}, {.typed_columns = 1, .date_columns = 1}}, "0"},
       {{{.typed_columns = 1, .numeric_columns = 1}, {.typed_columns = 4}}, "1"},
       {{{.typed_columns = 2, .delimiter_columns = 1}, {.typed_columns = 1}, {}}, "1"},
       {{{.typed_columns = 1, .delimiter_columns = 1}, {}}, "1"},
       // 32-bit differences wrap around
       {{{.typed_columns = most, .delimiter_columns = -1}, {}}, "1"}});
}

TEST(PickerRules, HeaderLines) {
  auto const score = [](double const variation, std::size_t const header_lines) {
    return StrategyValuation{.data_variation = variation, .header_lines = header_lines};
  };
  expect_survivors(rules::header_lines(),
                   {{{score(0.0, 2), score(0.0, 1), score(0.0, 1)}, "1 2"},
                    // only the first is asked whether it is perfectly regular
                    {{score(0.3, 2), score(0.0, 1)}, "0 1"},
                    {{score(nan, 2), score(0.0, 1)}, "0 1"},
                    {{score(0.0, 2), score(0.3, 1)}, "0 1"},
                    {{score(0.0, 1), score(0.3, 1)}, "0"}});
}

TEST(PickerRules, NonEmpty) {
  expect_survivors(rules::non_empty(),
                   {{{{.num_variables = 4, .typed_columns = 3},
                      {.num_variables = 8, .typed_columns = 6},
                      {.num_variables = 2, .typed_columns = 1}},
                     "0 1"},
                    {{{.num_variables = 0}, {.num_variables = 1, .typed_columns = 1}}, "0 1"},
                    {{{.num_variables = 1}, {.num_variables = 0}}, "0"}});
}

TEST(PickerRules, PriorsRank) {
  auto const score = [](double const rank) { return StrategyValuation{.prior_rank = rank}; };
  expect_survivors(rules::priors_rank(), {{{score(infinity), score(1), score(1)}, "1"},
                                          {{score(3.5), score(3.5)}, "0"},
                                          {{score(4.0), score(4.0)}, "0 1"},
                                          {{score(infinity), score(infinity)}, "0 1"}});
}

TEST(PickerRules, OnlyCandidatesThatAreStillInTheRunning) {
  Scores const scores = {{.prior_rank = 0}, {.prior_rank = 2}, {.prior_rank = 1}};
  EXPECT_EQ(support::show(rules::priors_rank().apply({1, 2}, scores)), "2");
  EXPECT_EQ(support::show(rules::Rule().apply({1, 2}, scores)), "");
}

/// The rules that ran, each with those it left, and the index that came of it.
std::string trace(rules::RuleList const& list, Scores const& scores) {
  std::vector<textio::detection::RuleStep> steps;
  auto const index = rules::pick_index(list, scores, &steps);
  EXPECT_EQ(rules::pick_index(list, scores), index);
  std::string text;
  for (auto const& step : steps) {
    text += std::string(step.rule) + " " + support::show(step.survivors) + ", ";
  }
  return text + "= " + std::to_string(index);
}

TEST(Ranking, TraceOfTheRules) {
  auto const level = StrategyValuation{.data_variation = 0.5,
                                       .num_records = 4,
                                       .num_variables = 2,
                                       .typed_columns = 2,
                                       .header_lines = 1};
  auto const with = [&level](auto const change) {
    StrategyValuation score = level;
    change(score);
    return score;
  };
  auto const dated = with([](auto& s) { s.date_columns = 1; });
  auto const regular = with([](auto& s) { s.data_variation = 0.0; });
  auto const usual = with([](auto& s) { s.prior_rank = 3.0; });
  auto const headless = with([](auto& s) { s.data_variation = 0.0, s.header_lines = 0; });

  auto const rules_with_all = rules::build_rules(false, 2, true);
  auto const rules_without = rules::build_rules(true, 2, false);
  EXPECT_EQ(rules_with_all.size(), 7U);
  EXPECT_EQ(rules_without.size(), 5U);
  EXPECT_EQ(trace(rules_with_all, {}), "= -1");
  EXPECT_EQ(trace(rules_with_all, {level}), "= 0");
  EXPECT_EQ(trace(rules_with_all, {level, level}),
            "numvariables 0 1, dates 0 1, variation 0 1, class_value 0 1, header_lines 0 1, "
            "non_empty 0 1, priors_rank 0 1, = -2");
  EXPECT_EQ(trace(rules_without, {level, usual, usual}),
            "dates 0 1 2, variation 0 1 2, class_value 0 1 2, non_empty 0 1 2, priors_rank 1, = 1");
  EXPECT_EQ(trace(rules_without, {level, dated, regular}), "dates 1, = 1");
  EXPECT_EQ(trace(rules_without, {level, regular}), "dates 0 1, variation 1, = 1");
  EXPECT_EQ(trace(rules_with_all, {regular, headless, level}),
            "numvariables 0 1 2, dates 0 1 2, variation 0 1, class_value 0 1, header_lines 1, = 1");
  EXPECT_EQ(trace(rules_without, {regular, headless}),
            "dates 0 1, variation 0 1, class_value 0 1, non_empty 0 1, priors_rank 0 1, = -2");
  rules::RuleList none_left;
  none_left.push_back(std::make_unique<rules::Rule const>());
  none_left.push_back(std::make_unique<rules::dates const>());
  EXPECT_EQ(trace(none_left, {level, level}), "none , = -1");
}

TEST(Ranking, StepsSayWhichNumbersTheRulesLookAt) {
  StrategyValuation const score{.data_variation = 0.5,
                                .num_records = 4,
                                .num_variables = 4,
                                .typed_columns = 3,
                                .date_columns = 1,
                                .datetime_columns = 1,
                                .prior_rank = 4.0,
                                .header_lines = 9};
  std::vector<textio::detection::RuleStep> steps;
  auto const all = rules::build_rules(false, 3, true);
  EXPECT_EQ(rules::pick_index(all, {{}, score, score}, &steps), rules::undecided);
  std::string text;
  for (auto const& step : steps) {
    text += std::string(step.rule) + " " + support::show(step.seen) + ":";
    for (double const measure : step.measures) {
      text += " " + support::show(measure);
    }
    text += "; ";
  }
  EXPECT_EQ(text,
            "numvariables 0 1 2: 1 4 4; dates 0 1 2: 0 2 2; variation 1 2: 0.5 0.5; class_value 1 "
            "2: 36 36; header_lines 1 2: 9 9; non_empty 1 2: 0.75 0.75; priors_rank 1 2: 4 4; ");
}

}  // namespace
