// SPDX-License-Identifier: MIT
//
// Every reading that an analysis weighs: what the engine sampled under each hypothesis, and what it
// never guesses by itself.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/readings/task_internal.hpp"

namespace textimport::analysis {

struct CollectedReadings {
  /// In a fixed order; their values are not measured yet.
  std::vector<Reading> readings;
  /// The engine's own decision under the first hypothesis, and the strategy that it came to; empty
  /// when the engine was not asked.
  std::optional<textio::detection::DetectionReport> engine;
  std::shared_ptr<textio::GenericStrategy> engine_decision;
  /// The positions of the lines show columns of fixed width. Only where that was looked at.
  bool shows_fixed_width = false;
};

/// The readings of the sample. A given layout or delimiter leaves only the readings that keep to
/// it, at least one for each hypothesis; excluded delimiters have none. The engine decides once for
/// each hypothesis, or not at all.
[[nodiscard]] CollectedReadings collect_readings(LineIndex const& lines,
                                                 std::vector<AssumedOptions> const& hypotheses,
                                                 Task const& task);

/// Each line as one value, under the first hypothesis.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> read_lines(LineIndex const& lines,
                                                                  Task const& task);

}  // namespace textimport::analysis
