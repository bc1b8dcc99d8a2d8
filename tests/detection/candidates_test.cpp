// SPDX-License-Identifier: MIT
//
// Which characters may be delimiters, the candidates that a sample gives, and the acceptance test.
#include <gtest/gtest.h>

#include "tests/support/decision.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/candidate_characters_internal.hpp"
#include "text_format_detection/detection/candidates_internal.hpp"
#include "text_format_detection/detection/sampler_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

TEST(Candidates, Characters) {
  support::for_each_row("detection/candidate_characters.tsv", [](support::Row const& row) {
    std::u16string const lines = row.text(0);
    EXPECT_EQ(support::show(textio::detection::candidate_characters(support::make_lines(lines))),
              row.cells.at(1));
  });
}

TEST(Candidates, AcceptanceTest) {
  support::for_each_row("detection/acceptance.tsv", [](support::Row const& row) {
    auto const score = support::record_of<textio::StrategyValuation>(row.value(1));
    EXPECT_EQ(support::show_rejection(textio::detection::find_rejection(score, row.value(0))),
              row.cells.at(2));
  });
}

/// The fates of all strategies that are sampled for the text.
std::string candidates(std::u16string_view const text, textio::parser::options const& how) {
  textio::Field const sample(text);
  textio::GenericStrategy::TypeAnalyzerOptions const types;
  textio::detection::SamplingContext context(sample, 100);
  auto const lines = std::make_shared<textio::LineReaderStrategy>(how, types);
  textio::detection::sample_strategy(context, lines, true);
  textio::detection::DetectionReport report;
  auto const list = textio::detection::generate_candidates(
      {how, types, *lines->field_array(), context, &report.sampled});
  auto const unnoticed =
      textio::detection::generate_candidates({how, types, *lines->field_array(), context, nullptr});
  EXPECT_EQ(unnoticed.size(), list.size());
  std::size_t accepted = 0;
  for (auto const& sampled : report.sampled) {
    if (sampled.candidate) {
      EXPECT_EQ(sampled.strategy, list.at(*sampled.candidate));
      ++accepted;
    }
  }
  EXPECT_EQ(accepted, list.size());
  bool const is_fixed =
      !list.empty() && list.front()->mode() == textio::enums::StrategyMode::FixedWidth;
  return support::show_sampled(report) +
         (is_fixed ? " h" + std::to_string(list.front()->header_lines()) : "");
}

TEST(Candidates, Fates) {
  support::for_each_row("detection/candidates.tsv", [](support::Row const& row) {
    std::u16string const text = row.text(0);
    EXPECT_EQ(candidates(text, support::record_of<textio::parser::options>(row.with)),
              row.cells.at(1));
  });
}

}  // namespace
