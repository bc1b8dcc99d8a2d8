// SPDX-License-Identifier: MIT
//
// A table has at least two columns with something in them. A list whose lines all end in a comma
// splits into two columns of which one is empty; it is a list all the same.
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

WeighingRule const several_columns{
    "several_columns", "at least two columns hold values; how many do",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, [](Reading const& r) { return r.filled_columns >= 2; });
    },
    [](Reading const& r) { return static_cast<double>(r.filled_columns); }};

}  // namespace textimport::analysis
