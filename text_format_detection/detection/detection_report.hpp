// SPDX-License-Identifier: MIT
//
// The record of a decision: what became of every strategy, which rule left whom, and why the answer
// is what it is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::detection {

/// What became of a strategy that was sampled.
enum class CandidateFate : std::uint8_t {
  Accepted,              ///< it is in the candidate list
  Rejected,              ///< the acceptance test turned it away; see RejectionClause
  LessTyped,             ///< a single space, with a smaller share of typed columns than the blanks
  ReplacedByFixedWidth,  ///< space-aligned, and fixed-width columns are more regular
};

/// The clause of the acceptance test that turned a candidate away.
enum class RejectionClause : std::uint8_t {
  None,
  SingleRecordUncommonDelimiter,  ///< one record, and not one of the default delimiters or blanks
  SingleRecordOneField,           ///< one record that holds fewer than two fields
  SingleRecordIrregular,          ///< one record, and the variation is not below 1
  Irregular,                      ///< the variation is not below 1 (or there is none)
  OneField,  ///< fewer than two fields a record, and no expected number of variables asks for that
};

/// The kind of answer.
enum class Outcome : std::uint8_t {
  Candidate,      ///< one of the candidates
  LineReader,     ///< each line is one value
  CommaFallback,  ///< comma-delimited, untested: nothing was decided
};

/// Why the answer is what it is.
enum class Reason : std::uint8_t {
  DateColumns,   ///< the whole lines are dates, times or durations: the comma fallback
  NoRecords,     ///< the sample holds no records: the line reader
  NoCandidates,  ///< no candidate was accepted: the line reader
  Single,        ///< exactly one candidate was accepted: it is the answer
  Ranked,        ///< the rules left one candidate
  Tie,           ///< the rules left several candidates: the comma fallback
  NoneLeft,      ///< the rules left none: the line reader; the seven rules never do
};

/// One strategy that was sampled. The strategy's fields are views into the sample.
struct SampledStrategy {
  std::shared_ptr<GenericStrategy> strategy;
  CandidateFate fate = CandidateFate::Accepted;
  RejectionClause clause = RejectionClause::None;  ///< not None exactly when the fate is Rejected
  /// The position in the candidate list when the fate is Accepted.
  std::optional<std::size_t> candidate;
};

/// One rule that ran. Candidates are ascending positions in the candidate list.
struct RuleStep {
  std::string_view rule;               ///< its name, a constant
  std::vector<std::size_t> seen;       ///< the candidates that were left before
  std::vector<double> measures;        ///< for each of these, the number that the rule looks at
  std::vector<std::size_t> survivors;  ///< the candidates that it left
};

/// The record of one decision. Keeps every sampled strategy alive, and with it views into the
/// sample.
struct DetectionReport {
  /// The line reader that looked at the sample first.
  std::shared_ptr<GenericStrategy> line_reader;
  /// Every other strategy, in the order in which they were sampled, the comma fallback excepted.
  std::vector<SampledStrategy> sampled;
  /// The accepted strategies, in the order in which the rules saw them.
  std::vector<std::shared_ptr<GenericStrategy>> candidates;
  /// The rules that ran, in order; empty when nothing was ranked.
  std::vector<RuleStep> steps;
  Outcome outcome = Outcome::LineReader;
  Reason reason = Reason::NoRecords;
  /// The position of the answer in `candidates` when the outcome is Candidate.
  std::optional<std::size_t> winner;
};

}  // namespace textio::detection
