// SPDX-License-Identifier: MIT
//
// Each doubt takes its share. How large a share is was set by hand, so that of the answers with a
// value about that many are right on real files; docs/accuracy.md shows how well that holds.
#include "text_import/analysis/weighing/confidence_internal.hpp"

#include <algorithm>

#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"

namespace textimport::analysis {

namespace {

// No answer is surer: there are texts that nobody could read.
constexpr double surest = 0.99;

/// Another usual delimiter that splits clearly more of the text, though into worse values.
bool has_wider_rival(std::vector<Reading> const& readings, Reading const& answer) {
  return std::ranges::any_of(readings, [&](Reading const& r) {
    return class_of(r) == DelimiterClass::Usual && r.delimiter != answer.delimiter &&
           r.filled_columns >= 2 && r.coverage > answer.coverage + 0.3;
  });
}

double doubt_of_class(DelimiterClass const kind) {
  switch (kind) {
    case DelimiterClass::Usual:
    case DelimiterClass::Blank:
      return 1;
    case DelimiterClass::Rare:
      return 0.85;
    case DelimiterClass::None:
      break;
  }
  return 0.93;
}

}  // namespace

double confidence_of_table(std::vector<Reading> const& readings, std::size_t const winner) {
  Reading const& r = readings[winner];
  bool const is_typed = r.typed_columns > 0;
  bool const is_short = r.block.regular <= 2;
  double confidence = surest * doubt_of_class(class_of(r));
  if (!is_typed) {
    confidence *= 0.97;
  }
  if (r.filled_columns == 2) {
    confidence *= 0.97;
  }
  if (is_short) {
    confidence *= is_typed ? 0.97 : 0.8;
  }
  if (r.coverage <= 0.6 && !is_typed) {
    confidence *= 0.6;
  }
  if (r.regularity < 0.8) {
    confidence *= 0.9;
  }
  if (has_wider_rival(readings, r)) {
    confidence *= 0.6;
  }
  return confidence;
}

double confidence_of_lines(std::vector<Reading> const& readings) {
  double best = 0;  // fit of a table of three columns or more
  for (Reading const& r : readings) {
    if (r.filled_columns >= 3 && class_of(r) != DelimiterClass::Rare) {
      best = std::max(best, r.coverage * r.soundness);
    }
  }
  return best >= 0.3 ? 0.6 : best >= 0.1 ? 0.8 : 0.9;
}

}  // namespace textimport::analysis
