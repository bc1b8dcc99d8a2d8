// SPDX-License-Identifier: MIT
//
// A colon, a slash or an equals sign stands in times, paths and settings; such a character delimits
// a table only where it makes at least three columns, of which one is more than text or all of
// which hold together well.
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

WeighingRule const rare_delimiters{
    "rare_delimiters",
    "an unusual delimiter makes at least three columns, and values that hold together; the columns",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, [](Reading const& r) {
        bool const has_evidence = r.filled_columns >= 3 && r.soundness >= 0.7 &&
                                  (r.typed_columns > 0 || r.soundness >= 0.9);
        return class_of(r) != DelimiterClass::Rare || has_evidence;
      });
    },
    [](Reading const& r) { return r.soundness; }};

}  // namespace textimport::analysis
