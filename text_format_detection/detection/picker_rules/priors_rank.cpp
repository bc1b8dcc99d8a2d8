// SPDX-License-Identifier: MIT
//
// What is left is decided by habit: a comma before a tab, a semicolon, a space, and blanks that
// line columns up. Between other kinds habit makes no choice.
#include <functional>

#include "text_format_detection/detection/picker_rules/rules_internal.hpp"
#include "text_format_detection/detection/picker_rules/selection_internal.hpp"
#include "text_format_detection/model/text_constants_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

double prior_rank_of(StrategyValuation const& score) {
  return score.prior_rank;
}

}  // namespace

Candidates priors_rank::apply(Candidates const& candidates, Valuations const& valuations) const {
  std::size_t const best = find_best(candidates, valuations, prior_rank_of, std::less<>());
  bool const is_usual =
      valuations[best].prior_rank < static_cast<double>(model::default_delimiters.size());
  return is_usual ? Candidates{best} : candidates;
}

std::string_view priors_rank::name() const noexcept {
  return "priors_rank";
}

}  // namespace textio::detection::picker_rules
