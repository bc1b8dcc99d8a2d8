// SPDX-License-Identifier: MIT
//
// The records of a table mostly have the same number of fields. Usual delimiters may leave out more
// of the text (titles, notes) than blanks, which any sentence holds; what covers little of the text
// has to be flawless, stand at its end, where data stand, and say more than text.
#include "text_import/survey/rules/delimiter_class_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

bool is_flawless_end(reading const& r) {
  bool const reaches_end = r.block.last + 2 >= r.records.size();
  return reaches_end && r.regularity >= 0.95 && r.block.regular >= 2 && r.typed_columns > 0;
}

bool is_regular_in_blanks(reading const& r) {
  if (r.regularity < 0.9 || (r.filled_records == 1 && r.typed_columns < 2)) {
    return false;
  }
  bool const is_data = r.typed_share >= 0.6;
  return r.coverage >= 0.8 || (is_data && (r.coverage >= 0.5 || is_flawless_end(r)));
}

bool is_regular(reading const& r) {
  switch (class_of(r)) {
    case delimiter_class::usual:
      return r.regularity >= 0.6 && (r.coverage >= 0.45 || is_flawless_end(r));
    case delimiter_class::blank:
      return is_regular_in_blanks(r);
    case delimiter_class::rare:
      return r.coverage >= 0.9;
    case delimiter_class::none:
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
    [](reading const& r) { return r.coverage; }};

}  // namespace textimport::survey
