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

/// The first candidate whose value is the best; `better` is strict.
template <class Value, class Better>
[[nodiscard]] std::size_t find_best(Candidates const& candidates, Valuations const& valuations,
                                    Value const value, Better const better) {
  std::size_t best = candidates.front();
  for (std::size_t const c : candidates) {
    if (better(value(valuations[c]), value(valuations[best]))) {
      best = c;
    }
  }
  return best;
}

/// The candidates whose value equals the best one exactly; all of them when none does, which takes
/// a best value that is not a number.
template <class Value, class Better>
[[nodiscard]] Candidates keep_best(Candidates const& candidates, Valuations const& valuations,
                                   Value const value, Better const better) {
  auto const best = value(valuations[find_best(candidates, valuations, value, better)]);
  return keep_if(candidates, valuations,
                 [&](StrategyValuation const& score) { return value(score) == best; });
}

}  // namespace textio::detection::picker_rules
