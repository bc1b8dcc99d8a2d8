// SPDX-License-Identifier: MIT
//
// Where a character stands in pairs only, the pair is the delimiter: by the single one every second
// column would be empty.
#include <algorithm>

#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

kept_readings apply(kept_readings const& kept, std::vector<reading> const& readings) {
  return keep_if(kept, readings, [&](reading const& r) {
    return r.delimiter.size() != 1 || std::ranges::none_of(kept, [&](std::size_t const i) {
             return readings[i].delimiter == r.delimiter + r.delimiter;
           });
  });
}

}  // namespace

survey_rule const doubled_delimiters{"doubled_delimiters", apply,
                                     [](reading const& r) { return r.empty_share; }};

}  // namespace textimport::survey
