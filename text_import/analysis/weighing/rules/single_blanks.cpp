// SPDX-License-Identifier: MIT
//
// A single blank delimits only where hardly a field is empty: what lines columns up are runs of
// blanks, and those are one delimiter.
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

WeighingRule const single_blanks{
    "single_blanks",
    "a single blank delimits only where hardly a field is empty; the share of empty ones",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings,
                     [](Reading const& r) { return r.delimiter != u" " || r.empty_share < 0.1; });
    },
    [](Reading const& r) { return r.empty_share; }, true};

}  // namespace textimport::analysis
