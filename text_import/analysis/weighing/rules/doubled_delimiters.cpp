// SPDX-License-Identifier: MIT
//
// Where a character stands in pairs only, the pair is the delimiter: by the single one every second
// column would be empty.
#include <algorithm>

#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

KeptReadings apply(KeptReadings const& kept, std::vector<Reading> const& readings) {
  return keep_if(kept, readings, [&](Reading const& r) {
    return r.delimiter.size() != 1 || std::ranges::none_of(kept, [&](std::size_t const i) {
             return readings[i].delimiter == r.delimiter + r.delimiter;
           });
  });
}

}  // namespace

WeighingRule const doubled_delimiters{
    "doubled_delimiters",
    "where a character stands in pairs only, the pair delimits; the share of empty fields", apply,
    [](Reading const& r) { return r.empty_share; }, true};

}  // namespace textimport::analysis
