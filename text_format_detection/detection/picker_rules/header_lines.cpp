// SPDX-License-Identifier: MIT
//
// Of two perfectly regular readings, the one that declares fewer lines to be headers explains more
// of the text. The first candidate alone decides whether readings are taken for perfectly regular;
// that is deliberate.
#include <functional>

#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

std::size_t header_lines_of(StrategyValuation const& score) {
  return score.header_lines;
}

}  // namespace

Candidates header_lines::apply(Candidates const& candidates, Valuations const& valuations) const {
  if (valuations[candidates.front()].data_variation != 0.0) {
    return candidates;
  }
  std::size_t const least = header_lines_of(
      valuations[find_best(candidates, valuations, header_lines_of, std::less<>())]);
  return keep_if(candidates, valuations, [least](StrategyValuation const& score) {
    return score.header_lines == least && score.data_variation == 0.0;
  });
}

std::string_view header_lines::name() const noexcept {
  return "header_lines";
}

}  // namespace textio::detection::picker_rules
