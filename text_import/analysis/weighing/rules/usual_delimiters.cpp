// SPDX-License-Identifier: MIT
//
// Between readings that explain a text equally well the more usual delimiter decides, and then the
// hypothesis that assumes less, which comes first.
#include <algorithm>

#include "text_import/analysis/readings/usual_delimiters_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

/// Smaller is more usual.
double rank(Reading const& r) {
  if (r.layout == Layout::Delimited) {
    if (is_common(r.delimiter)) {
      return static_cast<double>(common_delimiters.find(r.delimiter));
    }
    return r.delimiter == u" " ? 5 : 6;
  }
  return r.layout == Layout::SpaceAligned ? 4 : 7;
}

KeptReadings apply(KeptReadings const& kept, std::vector<Reading> const& readings) {
  if (kept.empty()) {
    return kept;
  }
  return {
      *std::ranges::min_element(kept, {}, [&](std::size_t const i) { return rank(readings[i]); })};
}

}  // namespace

WeighingRule const usual_delimiters{"usual_delimiters", "the most usual delimiter; its rank", apply,
                                    rank};

}  // namespace textimport::analysis
