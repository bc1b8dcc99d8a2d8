// SPDX-License-Identifier: MIT
//
// Cut at the right places a text gives values that hold together: no odd quotes or brackets, no
// foreign delimiters. The less of the text a reading explains, the better its values have to be.
#include "text_import/survey/rules/delimiter_class_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

double required_soundness(reading const& r) {
  if (class_of(r) == delimiter_class::None) {
    return 0;
  }
  if (r.filled_records == 1) {
    return 0.75;
  }
  return r.coverage >= 0.9 ? 0.45 : 0.65;
}

}  // namespace

survey_rule const sound_values{"sound_values",
                               [](kept_readings const& kept, std::vector<reading> const& readings) {
                                 return keep_if(kept, readings, [](reading const& r) {
                                   return r.soundness >= required_soundness(r);
                                 });
                               },
                               [](reading const& r) { return r.soundness; }};

}  // namespace textimport::survey
