// SPDX-License-Identifier: MIT
//
// A caller who says how many variables to expect knows more than the sample shows.
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

Candidates numvariables::apply(Candidates const& candidates, Valuations const& valuations) const {
  return keep_if(candidates, valuations, [this](StrategyValuation const& score) {
    return score.num_variables == expected_count;
  });
}

std::string_view numvariables::name() const noexcept {
  return "numvariables";
}

double numvariables::measure(StrategyValuation const& score) const noexcept {
  return static_cast<double>(score.num_variables);
}

}  // namespace textio::detection::picker_rules
