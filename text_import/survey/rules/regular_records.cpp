// SPDX-License-Identifier: MIT
//
// Between its first and its last record a table mostly has the same number of fields; usual
// delimiters may be missing more often than blanks, which any sentence holds, and a rare delimiter
// has to split nearly all of the text.
#include "text_import/survey/rules/delimiter_class_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

bool is_regular(reading const& r) {
  if (r.block.columns < 2) {
    return false;
  }
  switch (class_of(r)) {
    case delimiter_class::Usual:
      return r.regularity >= 0.6;
    case delimiter_class::Blank:
      return r.regularity >= 0.9;
    case delimiter_class::Rare:
      return r.coverage >= 0.9;
    case delimiter_class::None:
      break;
  }
  return true;  // the profile of its columns is what made a reading of fixed widths
}

}  // namespace

survey_rule const regular_records{
    "regular_records",
    [](kept_readings const& kept, std::vector<reading> const& readings) {
      return keep_if(kept, readings, is_regular);
    },
    [](reading const& r) { return r.regularity; }};

}  // namespace textimport::survey
