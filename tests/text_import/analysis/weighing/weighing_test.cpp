// SPDX-License-Identifier: MIT
//
// Scores are what their pieces say, shares are shares, and texts have the traits that they show.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/analysis/weighing/measures_internal.hpp"
#include "text_import/analysis/weighing/text_traits_internal.hpp"
#include "text_import/analysis/weighing/weights_internal.hpp"

namespace textimport::analysis {
namespace {

TEST(weighing, has_one_weight_for_each_measure_and_kind) {
  auto const measures = all_measures();
  auto const weights = all_weights();
  ASSERT_EQ(measures.size(), weights.size());
  for (std::size_t i = 0; i < measures.size(); ++i) {
    EXPECT_EQ(measures[i].name, weights[i].measure);
    EXPECT_FALSE(measures[i].meaning.empty());
  }
  EXPECT_TRUE(decided_from > 0.5 && decided_from < 1);
}

TEST(weighing, shares_out_what_the_scores_say) {
  std::u16string const text = u"id;name\n1;a, b\n2;c, d\n3;e, f\n";
  Analysis const found = analyse({text}, {});
  double all = 0;
  for (Candidate const& candidate : found.evidence.candidates) {
    double score = 0;
    for (ScorePiece const& piece : candidate.pieces) {
      score += piece.amount;
    }
    EXPECT_EQ(score, candidate.score);
    all += candidate.share;
  }
  EXPECT_NEAR(all, 1, 1e-12);
  auto const& candidates = found.evidence.candidates;
  ASSERT_TRUE(found.evidence.winner);
  Candidate const& winner = candidates[*found.evidence.winner];
  EXPECT_EQ(candidates.back().layout, Layout::Lines) << "whole lines come last";
  EXPECT_NEAR(std::exp(candidates.back().score - winner.score),
              candidates.back().share / winner.share, 1e-9);
}

TEST(weighing, never_answers_with_lines_where_the_layout_is_given) {
  std::u16string const text = u"The cat sat on the mat.\nIt was a good mat, and it knew.\n";
  ASSERT_FALSE(analyse({text}, {}).evidence.winner);
  Request request;
  request.layout = Layout::Delimited;
  Analysis const found = analyse({text}, request);
  EXPECT_TRUE(found.evidence.winner);
  EXPECT_FALSE(found.decided) << "lines are likelier all the same";
}

std::string show(TextTraits const& traits) {
  std::string shown;
  auto const add = [&](char const* const name, double const share) {
    if (share > 0) {
      shown +=
          (shown.empty() ? "" : " ") + (name + ('=' + std::to_string(std::lround(share * 100))));
    }
  };
  add("sentences", traits.sentence_ends);
  add("function", traits.function_words);
  add("numbers", traits.number_words);
  add("stamps", traits.time_stamps);
  add("colons", traits.colon_keys);
  add("equals", traits.equals_keys);
  add("tags", traits.tags);
  add("code", traits.code_ends);
  add("indented", traits.indented);
  add("blank", traits.blank_lines);
  add("gaps", traits.wide_gaps);
  add("commas", traits.comma_blanks);
  add("prose", traits.prose_lines);
  add("patterns", traits.patterns);
  add("addresses", traits.addresses);
  add("logs", traits.log_lines);
  add("levels", traits.log_levels);
  add("values", traits.single_values);
  add("leaders", traits.leaders);
  add("pairs", traits.pair_words);
  return shown;
}

TEST(text_traits, are_what_the_lines_show) {
  support::for_each_row("text_import/analysis/weighing/text_traits.tsv",
                        [](support::Row const& row) {
                          std::u16string const text = row.text(0);
                          EXPECT_EQ(row.cells[1], show(find_text_traits(LineIndex(text, {u"\n"}))));
                        });
}

}  // namespace
}  // namespace textimport::analysis
