// SPDX-License-Identifier: MIT
//
// Of the readings that are left, those stay that explain about as much of the text by values as
// sound as the best one's: the share of regular records times the soundness.
#include <algorithm>

#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

double fit(Reading const& r) {
  return r.coverage * r.soundness;
}

KeptReadings apply(KeptReadings const& kept, std::vector<Reading> const& readings) {
  constexpr double about_as_much = 0.98;
  double best = 0;
  for (std::size_t const i : kept) {
    best = std::max(best, fit(readings[i]));
  }
  return keep_if(kept, readings, [&](Reading const& r) { return fit(r) >= about_as_much * best; });
}

}  // namespace

WeighingRule const best_fit{
    "best_fit", "what explains about as much of the text as the best; coverage times soundness",
    apply, fit};

}  // namespace textimport::analysis
