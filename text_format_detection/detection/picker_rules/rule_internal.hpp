// SPDX-License-Identifier: MIT
//
// The rules that narrow several candidates down to one.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_format_detection/strategies/strategy_valuation.hpp"

namespace textio::detection::picker_rules {

/// Positions in the list of candidates, ascending.
using Candidates = std::vector<std::size_t>;
/// One score for each candidate, candidates that are out included.
using Valuations = std::vector<StrategyValuation>;

/// One rule. What every rule promises:
/// - it returns a subset of the candidates it is given, in their order, and never none of them:
///   where its criterion would remove all, it returns what it was given;
/// - it keeps every candidate that ties on its criterion, equality being exact;
/// - where it looks for a best candidate, the first of equals is the reference, and a comparison
///   with a NaN never counts as better.
/// It is never given an empty list. Immutable.
class Rule {
 public:
  Rule() = default;
  Rule(Rule const&) = delete;
  Rule(Rule&&) = delete;
  Rule& operator=(Rule const&) = delete;
  Rule& operator=(Rule&&) = delete;

  /// The candidates that the rule prefers. The base class prefers none.
  [[nodiscard]] virtual Candidates apply(Candidates const& candidates,
                                         Valuations const& valuations) const;

  virtual ~Rule();

  /// The name under which reports mention the rule; a constant.
  [[nodiscard]] virtual std::string_view name() const noexcept;

  /// The number of a score that the rule looks at.
  [[nodiscard]] virtual double measure(StrategyValuation const& score) const noexcept;
};

}  // namespace textio::detection::picker_rules
