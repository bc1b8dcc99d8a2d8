// SPDX-License-Identifier: MIT
//
// The two patterns that rules are made of: a filter, and the best candidate with its equals.
#pragma once

#include <algorithm>
#include <iterator>

#include "text_format_detection/detection/picker_rules/rule_internal.hpp"

namespace textio::detection::picker_rules {

/// The candidates whose score passes the test; all of them when none does.
template <class Test>
[[nodiscard]] Candidates keep_if(Candidates const& candidates, Valuations const& valuations,
                                 Test const test) {
  Candidates kept;
  std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(kept),
               [&](std::size_t const c) { return test(valuations[c]); });
  return kept.empty() ? candidates : kept;
}

/// The first candidate with the least measure.
[[nodiscard]] inline std::size_t find_least(Rule const& rule, Candidates const& candidates,
                                            Valuations const& valuations) {
  return *std::min_element(candidates.begin(), candidates.end(),
                           [&](std::size_t const a, std::size_t const b) {
                             return rule.measure(valuations[a]) < rule.measure(valuations[b]);
                           });
}

/// The candidates whose measure equals the greatest one exactly; all of them when none does, which
/// takes a greatest one that is not a number.
[[nodiscard]] inline Candidates keep_greatest(Rule const& rule, Candidates const& candidates,
                                              Valuations const& valuations) {
  std::size_t const best = *std::max_element(
      candidates.begin(), candidates.end(), [&](std::size_t const a, std::size_t const b) {
        return rule.measure(valuations[a]) < rule.measure(valuations[b]);
      });
  return keep_if(candidates, valuations,
                 [&, greatest = rule.measure(valuations[best])](StrategyValuation const& score) {
                   return rule.measure(score) == greatest;
                 });
}

}  // namespace textio::detection::picker_rules
