// SPDX-License-Identifier: MIT
//
// Cut at the right places a text gives values that hold together: no odd quotes or brackets, no
// foreign delimiters. The less of the text a reading explains, the better its values have to be.
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

double required_soundness(Reading const& r) {
  if (class_of(r) == DelimiterClass::None) {
    return 0;
  }
  if (r.filled_records == 1) {
    return 0.75;
  }
  return r.coverage >= 0.9 ? 0.45 : 0.65;
}

}  // namespace

WeighingRule const sound_values{"sound_values",
                                "values that are cut at the right places hold together: no odd "
                                "quotes, no foreign delimiters; how well they do, 0 to 1",
                                [](KeptReadings const& kept, std::vector<Reading> const& readings) {
                                  return keep_if(kept, readings, [](Reading const& r) {
                                    return r.soundness >= required_soundness(r);
                                  });
                                },
                                [](Reading const& r) { return r.soundness; }};

}  // namespace textimport::analysis
