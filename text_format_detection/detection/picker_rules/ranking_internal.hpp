// SPDX-License-Identifier: MIT
//
// The ordered list of rules, and what comes of applying it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/detection/picker_rules/rule_internal.hpp"

namespace textio::detection::picker_rules {

using RuleList = std::vector<std::unique_ptr<Rule const>>;

/// No candidate: there were no valuations, or a rule left none.
inline constexpr std::int32_t no_candidate = -1;
/// The rules ran out with two or more candidates still level.
inline constexpr std::int32_t undecided = -2;

/// The rules in their order; the first only when a number of variables is expected, the one on
/// header lines only when they are detected.
[[nodiscard]] RuleList build_rules(bool ignore_num_variables, std::size_t num_variables,
                                   bool detect_header_lines);

/// Applies the rules in turn until one candidate is left; returns its position, `no_candidate` or
/// `undecided`. Appends each rule that ran to `steps`, unless that is null.
[[nodiscard]] std::int32_t pick_index(RuleList const& rules, Valuations const& valuations,
                                      std::vector<RuleStep>* steps = nullptr);

}  // namespace textio::detection::picker_rules
