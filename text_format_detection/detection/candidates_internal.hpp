// SPDX-License-Identifier: MIT
//
// From the characters of a sample to the list of strategies that are worth ranking.
#pragma once

#include <memory>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/detection/sampling_context_internal.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::detection {

using CandidateList = std::vector<std::shared_ptr<GenericStrategy>>;

/// What candidates are built from. The references outlive the call.
struct CandidateInput {
  parser::options const& options;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const& type_options;
  /// The sample's lines, one field each, as the line reader stored them.
  FieldArray const& lines;
  SamplingContext& context;
  /// Takes note of every strategy that is sampled, in order; null when nobody asks.
  std::vector<SampledStrategy>* log;
};

/// The candidates, sampled and scored, in order of the first appearance of their characters; at the
/// position of the first space stand the space-aligned strategy, or the fixed-width one that
/// replaces it, and then the single-space strategy. With a fixed-width layout asked for, exactly
/// one candidate, which takes no test.
[[nodiscard]] CandidateList generate_candidates(CandidateInput const& input);

/// The acceptance test: the clause that turns away a candidate with this score, or None.
[[nodiscard]] RejectionClause find_rejection(StrategyValuation const& score,
                                             bool ignore_num_variables);

}  // namespace textio::detection
