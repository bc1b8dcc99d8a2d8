// SPDX-License-Identifier: MIT
//
// Blanks line up by chance in a few lines of prose and on purpose in drawings and menus. Columns of
// fixed width are believed where one of them says more than text, or where the lines agree on the
// kind of character nearly everywhere.
#include "text_import/survey/rules/delimiter_class_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

survey_rule const typed_fixed_width{
    "typed_fixed_width",
    [](kept_readings const& kept, std::vector<reading> const& readings) {
      return keep_if(kept, readings, [](reading const& r) {
        return class_of(r) != delimiter_class::None || r.typed_columns > 0 || r.agreement >= 0.4;
      });
    },
    [](reading const& r) { return static_cast<double>(r.typed_columns); }};

}  // namespace textimport::survey
