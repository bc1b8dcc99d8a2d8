// SPDX-License-Identifier: MIT
//
// A single blank delimits only where hardly a field is empty: what lines columns up are runs of
// blanks, and those are one delimiter.
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

survey_rule const single_blanks{
    "single_blanks",
    [](kept_readings const& kept, std::vector<reading> const& readings) {
      return keep_if(kept, readings,
                     [](reading const& r) { return r.delimiter != u" " || r.empty_share < 0.1; });
    },
    [](reading const& r) { return r.empty_share; }};

}  // namespace textimport::survey
