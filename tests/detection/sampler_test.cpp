// SPDX-License-Identifier: MIT
//
// How much of a text a strategy samples, and that it does so once.
#include <gtest/gtest.h>

#include "tests/support/strategies.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/detection/sampler_internal.hpp"

namespace {

using support::show;
using textio::Field;
using textio::enums::StrategyMode;
using textio::parser::options;

/// What a row says beside the options.
struct How {
  StrategyMode mode = StrategyMode::Delimited;
  std::size_t records = textio::unknown_count;
};

template <class Visit>
void visit_members(How& how, Visit const& visit) {
  visit("mode", how.mode);
  visit("records", how.records);
}

TEST(SampleStrategy, ReadsOnceUpToTheRecordLimit) {
  support::for_each_row("detection/sampling.tsv", [](support::Row const& row) {
    How how;
    options rules;
    support::read_members(row.with, how, rules);
    bool const is_fixed = how.mode == StrategyMode::FixedWidth;
    auto const strategy =
        is_fixed ? support::make_strategy("fixed_width", rules, {}, rules.column_widths)
                 : support::make_strategy("delimited", rules, {}, ",");
    std::u16string const text = row.text(0);
    Field const sample(text);
    textio::detection::SamplingContext context(sample, how.records);
    textio::detection::sample_strategy(context, strategy, false);
    EXPECT_FALSE(strategy->is_evaluated());
    EXPECT_EQ(show(*strategy->field_array()), row.cells.at(1));
    Field const other(u"x");
    textio::evaluate_strategy(strategy, other, 1);
    EXPECT_TRUE(strategy->is_evaluated());
    EXPECT_EQ(show(*strategy->field_array()), row.cells.back()) << "at most once";
  });
}

TEST(SampleStrategy, LeavesWhatHasNoReader) {
  auto const strategy = std::make_shared<textio::GenericStrategy>(
      options{}, textio::GenericStrategy::TypeAnalyzerOptions{}, StrategyMode{4});
  Field const sample(u"a,b\nc,d\n");
  EXPECT_EQ(textio::evaluate_strategy(strategy, sample, 2).num_records, 0U);
  EXPECT_FALSE(strategy->is_sampled());
}

}  // namespace
