// SPDX-License-Identifier: MIT
//
// A table has at least two columns with something in them. A list whose lines all end in a comma
// splits into two columns of which one is empty; it is a list all the same.
#include "text_import/analysis/weighing/rules/survey_rule_internal.hpp"

namespace textimport::analysis {

SurveyRule const several_columns{
    "several_columns",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, [](Reading const& r) { return r.filled_columns >= 2; });
    },
    [](Reading const& r) { return static_cast<double>(r.filled_columns); }};

}  // namespace textimport::analysis
