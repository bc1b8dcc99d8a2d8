// SPDX-License-Identifier: MIT
//
// A wrong delimiter tends to make columns that are empty throughout.
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

Candidates non_empty::apply(Candidates const& candidates, Valuations const& valuations) const {
  return keep_greatest(*this, candidates, valuations);
}

std::string_view non_empty::name() const noexcept {
  return "non_empty";
}

double non_empty::measure(StrategyValuation const& score) const noexcept {
  // Not a number for a candidate without variables; it is then no better than any other.
  return static_cast<double>(score.typed_columns) / static_cast<double>(score.num_variables);
}

}  // namespace textio::detection::picker_rules
