// SPDX-License-Identifier: MIT
//
// The base of the rules.
#include "text_format_detection/detection/picker_rules/rule_internal.hpp"

namespace textio::detection::picker_rules {

Candidates Rule::apply(Candidates const& /*candidates*/, Valuations const& /*valuations*/) const {
  return {};
}

Rule::~Rule() = default;

std::string_view Rule::name() const noexcept {
  return "none";
}

double Rule::measure(StrategyValuation const& /*score*/) const noexcept {
  return 0.0;
}

}  // namespace textio::detection::picker_rules
