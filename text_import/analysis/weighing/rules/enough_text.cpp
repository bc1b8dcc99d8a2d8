// SPDX-License-Identifier: MIT
//
// A table makes up much of its text. Titles and notes may stand around it, but what covers little
// of the text has to be flawless, stand at the end, where data stand, and say more than text. With
// blanks, which split any prose, even the larger part of a text has to say more than text, and
// words alone have to stand in threes on nearly every line.
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

bool is_flawless_end(Reading const& r) {
  bool const reaches_end = r.block.last + 2 >= r.records.size();
  return reaches_end && r.regularity >= 0.95 && r.block.regular >= 2 && r.typed_columns > 0;
}

bool is_enough_by_blanks(Reading const& r) {
  if (r.filled_records == 1) {
    return r.typed_columns >= 2;
  }
  if (r.typed_share < 0.2) {
    return r.coverage >= 0.95 && r.filled_columns >= 3 && r.block.regular >= 5;
  }
  bool const is_data = r.block.regular > 2 && r.typed_share >= 0.5;
  return r.coverage >= 0.8 || (is_data && r.coverage >= 0.5) ||
         (r.typed_share >= 0.8 && is_flawless_end(r));
}

bool is_enough(Reading const& r) {
  switch (class_of(r)) {
    case DelimiterClass::Usual:
      return r.coverage >= 0.45 || is_flawless_end(r);
    case DelimiterClass::Blank:
      return is_enough_by_blanks(r);
    case DelimiterClass::Rare:
    case DelimiterClass::None:
      break;
  }
  return true;
}

}  // namespace

WeighingRule const enough_text{"enough_text",
                               "a table makes up much of its text, and what only blanks split has "
                               "to say more than text besides; the share of the text's records",
                               [](KeptReadings const& kept, std::vector<Reading> const& readings) {
                                 return keep_if(kept, readings, is_enough);
                               },
                               [](Reading const& r) { return r.coverage; }, true};

}  // namespace textimport::analysis
