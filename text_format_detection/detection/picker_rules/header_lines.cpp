// SPDX-License-Identifier: MIT
//
// Of two perfectly regular readings, the one that declares fewer lines to be headers explains more
// of the text. The first candidate alone decides whether readings are taken for perfectly regular;
// that is deliberate.
#include <algorithm>

#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

// Compared as the counts they are: as a measure, the largest would lose their last digits.
std::size_t least_header_lines(Candidates const& candidates, Valuations const& valuations) {
  std::size_t least = valuations[candidates.front()].header_lines;
  for (std::size_t const c : candidates) {
    least = std::min(least, valuations[c].header_lines);
  }
  return least;
}

}  // namespace

Candidates header_lines::apply(Candidates const& candidates, Valuations const& valuations) const {
  if (valuations[candidates.front()].data_variation != 0.0) {
    return candidates;
  }
  std::size_t const least = least_header_lines(candidates, valuations);
  return keep_if(candidates, valuations, [least](StrategyValuation const& score) {
    return score.header_lines == least && score.data_variation == 0.0;
  });
}

std::string_view header_lines::name() const noexcept {
  return "header_lines";
}

double header_lines::measure(StrategyValuation const& score) const noexcept {
  return static_cast<double>(score.header_lines);
}

}  // namespace textio::detection::picker_rules
