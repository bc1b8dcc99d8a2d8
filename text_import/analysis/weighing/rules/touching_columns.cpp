// SPDX-License-Identifier: MIT
//
// Blanks separate columns only where every value has one beside it and none inside. Where fixed
// widths explain the lines, a reading by blanks has to be nearly flawless to stay; and where one
// such stays, or a usual delimiter explains the text, there is nothing left for fixed widths to
// explain.
#include <algorithm>

#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

bool is_flawless(Reading const& r) {
  return r.regularity >= 0.97 && r.broken_share < 0.02;
}

KeptReadings apply(KeptReadings const& kept, std::vector<Reading> const& readings) {
  auto const is_fixed = [&](std::size_t const i) {
    return class_of(readings[i]) == DelimiterClass::None;
  };
  if (std::ranges::none_of(kept, is_fixed)) {
    return kept;
  }
  KeptReadings left = keep_if(kept, readings, [](Reading const& r) {
    return class_of(r) != DelimiterClass::Blank || is_flawless(r);
  });
  bool const is_explained =
      std::ranges::any_of(left, [&](std::size_t const i) { return !is_fixed(i); });
  if (is_explained) {
    left = keep_if(left, readings,
                   [](Reading const& r) { return class_of(r) != DelimiterClass::None; });
  }
  return left;
}

}  // namespace

WeighingRule const touching_columns{
    "touching_columns",
    "blanks separate columns only where none stands inside a value; the share of broken values",
    apply, [](Reading const& r) { return r.broken_share; }, true};

}  // namespace textimport::analysis
