// SPDX-License-Identifier: MIT
//
// Columns of a special type do not come about by chance: a date with a time of day weighs 25, a
// date or duration 10, a number 3, any other value 1. A column that holds a lone delimiter
// character speaks against the candidate.
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

/// The columns that are typed, but none of the special types; 32-bit arithmetic wraps around.
std::int32_t other_columns(StrategyValuation const& score) {
  auto const bits = [](std::int32_t const count) { return static_cast<std::uint32_t>(count); };
  return static_cast<std::int32_t>(bits(score.typed_columns) - bits(score.numeric_columns) -
                                   bits(score.date_columns) - bits(score.datetime_columns) -
                                   bits(score.delimiter_columns));
}

}  // namespace

Candidates class_value::apply(Candidates const& candidates, Valuations const& valuations) const {
  return keep_greatest(*this, candidates, valuations);
}

std::string_view class_value::name() const noexcept {
  return "class_value";
}

double class_value::measure(StrategyValuation const& score) const noexcept {
  double const special =
      (10.0 * score.date_columns + 25.0 * score.datetime_columns) + 3.0 * score.numeric_columns;
  return special - static_cast<double>(score.delimiter_columns) +
         static_cast<double>(other_columns(score));
}

}  // namespace textio::detection::picker_rules
