// SPDX-License-Identifier: MIT
//
// The story of a decision: the line reader looks first, candidates are built from the characters of
// the sample, and rules choose between those that stand the test. Where nothing can be decided, the
// answer is the line reader or the comma fallback.
#include "text_format_detection/detection/strategy_selector.hpp"

#include <utility>

#include "text_format_detection/detection/candidates_internal.hpp"
#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"
#include "text_format_detection/detection/sampler_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace textio::detection {

namespace {

using StrategyPtr = std::shared_ptr<GenericStrategy>;

/// Whether whole lines are dates, times or durations; 32-bit sums wrap around.
bool holds_dates(StrategyValuation const& score) {
  auto const sum = static_cast<std::uint32_t>(score.date_columns) +
                   static_cast<std::uint32_t>(score.datetime_columns);
  return static_cast<std::int32_t>(sum) > 0;
}

/// One call of pick_strategy.
class Decision {
 public:
  /// Takes notes in `report`, unless that is null.
  Decision(parser::options const& options,
           ostrel::io::text::typedetection::TypeAnalyzerOptions const& type_options,
           Field const& sample, std::size_t const n, DetectionReport* const report)
      : options_(options), type_options_(type_options), context_(sample, n), report_(report) {}

  StrategyPtr make() {
    StrategyPtr const line_reader = std::make_shared<LineReaderStrategy>(options_, type_options_);
    sample_strategy(context_, line_reader, true);
    if (report_ != nullptr) {
      report_->line_reader = line_reader;
    }
    if (holds_dates(line_reader->valuation())) {
      return comma_fallback(Reason::DateColumns);
    }
    if (line_reader->field_array()->num_records() == 0) {
      return conclude(line_reader, Outcome::LineReader, Reason::NoRecords);
    }
    return choose(line_reader,
                  generate_candidates({options_, type_options_, *line_reader->field_array(),
                                       context_, report_ ? &report_->sampled : nullptr}));
  }

 private:
  StrategyPtr choose(StrategyPtr const& line_reader, CandidateList const& candidates) {
    if (report_ != nullptr) {
      report_->candidates = candidates;
    }
    if (candidates.empty()) {
      return conclude(line_reader, Outcome::LineReader, Reason::NoCandidates);
    }
    if (candidates.size() == 1) {
      return conclude_with_candidate(candidates, 0, Reason::Single);
    }
    std::int32_t const index = rank(candidates);
    if (index == picker_rules::no_candidate) {
      return conclude(line_reader, Outcome::LineReader, Reason::NoneLeft);
    }
    if (index == picker_rules::undecided) {
      return comma_fallback(Reason::Tie);
    }
    return conclude_with_candidate(candidates, static_cast<std::size_t>(index), Reason::Ranked);
  }

  [[nodiscard]] std::int32_t rank(CandidateList const& candidates) {
    picker_rules::Valuations valuations;
    valuations.reserve(candidates.size());
    for (StrategyPtr const& candidate : candidates) {
      valuations.push_back(candidate->valuation());
    }
    auto const rules = picker_rules::build_rules(
        options_.ignore_num_variables, options_.num_variables, options_.detect_header_lines);
    return picker_rules::pick_index(rules, valuations, report_ ? &report_->steps : nullptr);
  }

  /// A comma-delimited strategy that nobody tests: one variable is expected, no header lines.
  StrategyPtr comma_fallback(Reason const reason) {
    parser::options options = options_;
    options.delimiters = {u","};
    options.header_lines = 0;
    options.num_variables = 1;
    options.auxiliary_flag = false;
    options.detect_header_lines = false;
    StrategyPtr const strategy = std::make_shared<DelimitedStrategy>(options, type_options_);
    sample_strategy(context_, strategy, false);
    return conclude(strategy, Outcome::CommaFallback, reason);
  }

  StrategyPtr conclude_with_candidate(CandidateList const& candidates, std::size_t const index,
                                      Reason const reason) {
    if (report_ != nullptr) {
      report_->winner = index;
    }
    return conclude(candidates[index], Outcome::Candidate, reason);
  }

  StrategyPtr conclude(StrategyPtr strategy, Outcome const outcome, Reason const reason) {
    if (report_ != nullptr) {
      report_->outcome = outcome;
      report_->reason = reason;
    }
    return strategy;
  }

  parser::options const& options_;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const& type_options_;
  SamplingContext context_;
  DetectionReport* report_;
};

}  // namespace

StrategySelector::StrategySelector(parser::options const& options,
                                   TypeAnalyzerOptions const& type_options)
    : options_(&options),
      type_options_(&type_options),
      delimiters_(options.delimiters),
      header_lines_(options.header_lines),
      auxiliary_flag_(options.auxiliary_flag),
      detect_header_lines_(options.detect_header_lines) {}

std::shared_ptr<GenericStrategy> StrategySelector::pick_strategy(Field const& sample,
                                                                 std::size_t const n) {
  return Decision(*options_, *type_options_, sample, n, nullptr).make();
}

std::shared_ptr<GenericStrategy> StrategySelector::pick_strategy(Field const& sample,
                                                                 std::size_t const n,
                                                                 DetectionReport& report) {
  DetectionReport notes;
  StrategyPtr strategy = Decision(*options_, *type_options_, sample, n, &notes).make();
  report = std::move(notes);
  return strategy;
}

}  // namespace textio::detection
