// SPDX-License-Identifier: MIT
#include "text_import/report/score_words_internal.hpp"

#include <algorithm>
#include <cmath>
#include <map>

#include <fmt/format.h>

#include "text_import/report/reading_words_internal.hpp"

namespace textimport::reporting {

namespace {

void add(std::vector<Candidate const*>& ranked, Candidate const& candidate) {
  auto const splits_alike = [&](Candidate const* const other) {
    return other->layout == candidate.layout && other->delimiter == candidate.delimiter;
  };
  if (candidate.is_table && std::ranges::none_of(ranked, splits_alike)) {
    ranked.push_back(&candidate);
  }
}

}  // namespace

std::vector<ScoreDifference> differences(Candidate const& candidate, Candidate const& other) {
  std::map<std::size_t, ScoreDifference> by_measure;
  for (ScorePiece const& piece : candidate.pieces) {
    by_measure[piece.measure] = {piece.measure, piece.value, 0, piece.amount};
  }
  for (ScorePiece const& piece : other.pieces) {
    ScoreDifference& difference = by_measure[piece.measure];
    difference.measure = piece.measure;
    difference.there = piece.value;
    difference.amount -= piece.amount;
  }
  std::vector<ScoreDifference> sorted;
  for (auto const& [measure, difference] : by_measure) {
    sorted.push_back(difference);
  }
  std::ranges::stable_sort(sorted, std::ranges::greater{},
                           [](ScoreDifference const& d) { return std::abs(d.amount); });
  return sorted;
}

std::vector<Candidate const*> ranked_candidates(Evidence const& evidence) {
  std::vector<Candidate const*> rest;
  for (Candidate const& candidate : evidence.candidates) {
    rest.push_back(&candidate);
  }
  std::ranges::stable_sort(rest, std::ranges::greater{}, &Candidate::share);
  std::vector<Candidate const*> ranked;
  if (evidence.winner) {
    add(ranked, evidence.candidates[*evidence.winner]);
  } else if (!rest.empty()) {
    add(ranked, evidence.candidates.back());
  }
  for (Candidate const* const candidate : rest) {
    add(ranked, *candidate);
  }
  return ranked;
}

std::string difference_text(Evidence const& evidence, ScoreDifference const& difference) {
  MeasureText const& measure = evidence.measures[difference.measure];
  std::string const here = measure_text(measure, difference.here);
  std::string const there = measure_text(measure, difference.there);
  return here == there ? fmt::format("{}: {}", measure.meaning, here)
                       : fmt::format("{}: {}, there {}", measure.meaning, here, there);
}

std::string strongest_text(Evidence const& evidence, Candidate const& candidate,
                           Candidate const& other, std::size_t const most) {
  constexpr double least = 0.2;  // what adds less decides nothing
  std::vector<std::string> texts;
  for (ScoreDifference const& difference : differences(candidate, other)) {
    if (texts.size() < most && difference.amount >= least) {
      texts.push_back(difference_text(evidence, difference));
    }
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

}  // namespace textimport::reporting
