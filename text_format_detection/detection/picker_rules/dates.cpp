// SPDX-License-Identifier: MIT
//
// A date is cut to pieces by every wrong delimiter ("-", "/", ":", a space), so that a candidate
// that finds one whole has cut the text at the right places.
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"

namespace textio::detection::picker_rules {

Candidates dates::apply(Candidates const& candidates, Valuations const& valuations) const {
  return keep_if(candidates, valuations, [](StrategyValuation const& score) {
    return score.date_columns > 0 || score.datetime_columns >= 1;
  });
}

std::string_view dates::name() const noexcept {
  return "dates";
}

double dates::measure(StrategyValuation const& score) const noexcept {
  return static_cast<double>(score.date_columns) + static_cast<double>(score.datetime_columns);
}

}  // namespace textio::detection::picker_rules
