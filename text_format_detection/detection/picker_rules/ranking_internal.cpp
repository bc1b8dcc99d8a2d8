// SPDX-License-Identifier: MIT
//
// Building the list of rules and applying it.
#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"

#include <numeric>
#include <utility>

#include "text_format_detection/detection/picker_rules/rules_internal.hpp"

namespace textio::detection::picker_rules {

namespace {

RuleStep describe_step(Rule const& rule, Candidates const& seen, Valuations const& valuations,
                       Candidates const& survivors) {
  std::vector<double> measures;
  measures.reserve(seen.size());
  for (std::size_t const candidate : seen) {
    measures.push_back(rule.measure(valuations[candidate]));
  }
  return {rule.name(), seen, std::move(measures), survivors};
}

/// What is decided by the candidates that are left when no rule is.
std::int32_t decide(Candidates const& left) {
  if (left.empty()) {
    return no_candidate;
  }
  return left.size() == 1 ? static_cast<std::int32_t>(left.front()) : undecided;
}

}  // namespace

RuleList build_rules(bool const ignore_num_variables, std::size_t const num_variables,
                     bool const detect_header_lines) {
  RuleList rules;
  if (!ignore_num_variables) {
    rules.push_back(std::make_unique<numvariables>(num_variables));
  }
  rules.push_back(std::make_unique<dates>());
  rules.push_back(std::make_unique<variation>());
  rules.push_back(std::make_unique<class_value>());
  if (detect_header_lines) {
    rules.push_back(std::make_unique<header_lines>());
  }
  rules.push_back(std::make_unique<non_empty>());
  rules.push_back(std::make_unique<priors_rank>());
  return rules;
}

std::int32_t pick_index(RuleList const& rules, Valuations const& valuations,
                        std::vector<RuleStep>* const steps) {
  Candidates candidates(valuations.size());
  std::iota(candidates.begin(), candidates.end(), std::size_t{0});
  for (auto const& rule : rules) {
    if (candidates.size() < 2) {
      break;
    }
    Candidates survivors = rule->apply(candidates, valuations);
    if (steps != nullptr) {
      steps->push_back(describe_step(*rule, candidates, valuations, survivors));
    }
    candidates = std::move(survivors);
  }
  return decide(candidates);
}

}  // namespace textio::detection::picker_rules
