// SPDX-License-Identifier: MIT
//
// The right delimiter makes lines of equal numbers of fields. A candidate may exceed the least
// variation by ten per cent of it, and at any rate by a thousandth of the binary logarithm of the
// number of records: an odd line among many is no reason to fall.
//
// Two consequences are intended: with a least variation of +infinity, and with one of 0 over a
// single record, nobody is within the tolerance, and all candidates pass.
#include <cmath>

#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

double tolerance(StrategyValuation const& best) {
  double const relative = 0.1 * best.data_variation;
  double const floor = std::log2(static_cast<double>(best.num_records)) * 0.001;
  return relative > floor ? relative : floor;
}

}  // namespace

Candidates variation::apply(Candidates const& candidates, Valuations const& valuations) const {
  StrategyValuation const& best = valuations[find_least(*this, candidates, valuations)];
  return keep_if(candidates, valuations,
                 [&best, limit = tolerance(best)](StrategyValuation const& score) {
                   return limit > score.data_variation - best.data_variation;
                 });
}

std::string_view variation::name() const noexcept {
  return "variation";
}

double variation::measure(StrategyValuation const& score) const noexcept {
  return score.data_variation;
}

}  // namespace textio::detection::picker_rules
