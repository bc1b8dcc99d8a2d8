// SPDX-License-Identifier: MIT
//
// The ranking: each rule on made-up scores, and the list of rules as it narrows candidates down.
#include <numeric>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"

namespace {

using support::show;
namespace rules = textio::detection::picker_rules;

/// The scores in the cell, each laid over the common one.
rules::Valuations scores_of(support::json const& given, support::json const& common) {
  rules::Valuations scores;
  for (support::json const& score : given) {
    support::json whole = common;
    whole.merge_patch(score);
    scores.push_back(support::record_of<textio::StrategyValuation>(whole));
  }
  return scores;
}

TEST(PickerRules, EachForItself) {
  auto const list = rules::build_rules(false, 3, true);
  support::for_each_row("detection/rules.tsv", [&list](support::Row const& row) {
    auto const rule = std::find_if(list.begin(), list.end(), [&row](auto const& candidate) {
      return candidate->name() == row.cells.at(0);
    });
    ASSERT_NE(rule, list.end());
    auto const scores = scores_of(row.value(1), row.with);
    rules::Candidates all(scores.size());
    std::iota(all.begin(), all.end(), 0U);
    EXPECT_EQ(show((*rule)->apply(all, scores)), row.cells.at(2));
  });
}

TEST(PickerRules, OnlyCandidatesThatAreStillInTheRunning) {
  rules::Valuations const scores = {{.prior_rank = 0}, {.prior_rank = 2}, {.prior_rank = 1}};
  EXPECT_EQ(show(rules::priors_rank().apply({1, 2}, scores)), "2");
  EXPECT_EQ(show(rules::Rule().apply({1, 2}, scores)), "");
}

/// The rules that ran, and the index that came of it.
std::string trace(rules::RuleList const& list, rules::Valuations const& scores) {
  std::vector<textio::detection::RuleStep> steps;
  auto const index = rules::pick_index(list, scores, &steps);
  EXPECT_EQ(rules::pick_index(list, scores), index);
  std::string text;
  for (auto const& step : steps) {
    std::string numbers;
    for (double const measure : step.measures) {
      numbers += (numbers.empty() ? "" : " ") + show(measure);
    }
    text += std::string(step.rule) + " " + show(step.survivors) + " (" + numbers + "), ";
  }
  return text + "= " + std::to_string(index);
}

TEST(Ranking, TraceOfTheRules) {
  support::for_each_row("detection/ranking.tsv", [](support::Row const& row) {
    auto const how = support::record_of<textio::parser::options>(row.with["rules"]);
    auto const list =
        rules::build_rules(how.ignore_num_variables, how.num_variables, how.detect_header_lines);
    EXPECT_EQ(trace(list, scores_of(row.value(0), row.with["score"])), row.cells.at(1));
  });
  rules::RuleList none_left;
  none_left.push_back(std::make_unique<rules::Rule const>());
  none_left.push_back(std::make_unique<rules::dates const>());
  EXPECT_EQ(trace(none_left, {{}, {}}), "none  (0 0), = -1");
}

}  // namespace
