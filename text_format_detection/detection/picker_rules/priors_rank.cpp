// SPDX-License-Identifier: MIT
//
// What is left is decided by habit: a comma before a tab, a semicolon, a space, and blanks that
// line columns up. Between other kinds habit makes no choice.
#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"
#include "text_format_detection/model/text_constants_internal.hpp"

namespace textio::detection::picker_rules {

Candidates priors_rank::apply(Candidates const& candidates, Valuations const& valuations) const {
  std::size_t const best = find_least(*this, candidates, valuations);
  bool const is_usual =
      valuations[best].prior_rank < static_cast<double>(model::default_delimiters.size());
  return is_usual ? Candidates{best} : candidates;
}

std::string_view priors_rank::name() const noexcept {
  return "priors_rank";
}

double priors_rank::measure(StrategyValuation const& score) const noexcept {
  return score.prior_rank;
}

}  // namespace textio::detection::picker_rules
