// SPDX-License-Identifier: MIT
//
// A table has at least two columns with something in them. A list whose lines all end in a comma
// splits into two columns of which one is empty; it is a list all the same.
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

survey_rule const several_columns{
    "several_columns",
    [](kept_readings const& kept, std::vector<reading> const& readings) {
      return keep_if(kept, readings, [](reading const& r) { return r.filled_columns >= 2; });
    },
    [](reading const& r) { return static_cast<double>(r.filled_columns); }};

}  // namespace textimport::survey
