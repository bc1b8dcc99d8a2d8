// SPDX-License-Identifier: MIT
//
// Between its first and its last record a table mostly has the same number of fields; usual
// delimiters may be missing more often than blanks, which any sentence holds, and a rare delimiter
// has to split nearly all of the text.
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

bool is_regular(Reading const& r) {
  if (r.block.columns < 2) {
    return false;
  }
  switch (class_of(r)) {
    case DelimiterClass::Usual:
      return r.regularity >= 0.6;
    case DelimiterClass::Blank:
      return r.regularity >= 0.9;
    case DelimiterClass::Rare:
      return r.coverage >= 0.9;
    case DelimiterClass::None:
      break;
  }
  return true;  // the profile of its columns is what made a reading of fixed widths
}

}  // namespace

WeighingRule const regular_records{
    "regular_records",
    "between its first and its last record a table mostly has the same number of fields; the share "
    "of records that have it",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, is_regular);
    },
    [](Reading const& r) { return r.regularity; }, true};

}  // namespace textimport::analysis
