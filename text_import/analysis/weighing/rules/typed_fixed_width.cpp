// SPDX-License-Identifier: MIT
//
// Blanks line up by chance in a few lines of prose and on purpose in drawings and menus. Columns of
// fixed width are believed where one of them says more than text, or where the lines agree on the
// kind of character nearly everywhere.
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

WeighingRule const typed_fixed_width{
    "typed_fixed_width",
    "columns of fixed width are believed where one says more than text, or the lines agree nearly "
    "everywhere; how many say more",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, [](Reading const& r) {
        return class_of(r) != DelimiterClass::None || r.typed_columns > 0 || r.agreement >= 0.4;
      });
    },
    [](Reading const& r) { return static_cast<double>(r.typed_columns); }};

}  // namespace textimport::analysis
