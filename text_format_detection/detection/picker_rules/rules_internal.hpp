// SPDX-License-Identifier: MIT
//
// The seven rules, in the order in which they run. Each has a file of its own, with its reason.
#pragma once

#include <cstdint>
#include <string_view>

#include "text_format_detection/detection/picker_rules/rule_internal.hpp"

namespace textio::detection::picker_rules {

/// Keeps the candidates with the number of variables that the caller expects.
class numvariables : public Rule {
 public:
  explicit numvariables(std::uint64_t const count) : expected_count(count) {}

  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;

 private:
  std::uint64_t expected_count;  // NOLINT(readability-identifier-naming)
};

/// Keeps the candidates that found dates.
class dates : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

/// Keeps the candidates that are about as regular as the most regular one.
class variation : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

/// Keeps the candidates whose columns say most.
class class_value : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

/// Among perfectly regular candidates, keeps those with the fewest header lines.
class header_lines : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

/// Keeps the candidates with the largest share of columns that hold values.
class non_empty : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

/// Keeps the one candidate with the most usual delimiter.
class priors_rank : public Rule {
 public:
  [[nodiscard]] Candidates apply(Candidates const& candidates,
                                 Valuations const& valuations) const override;
  [[nodiscard]] std::string_view name() const noexcept override;
  [[nodiscard]] double measure(StrategyValuation const& score) const noexcept override;
};

}  // namespace textio::detection::picker_rules
