// SPDX-License-Identifier: MIT
//
// The analysis of a text: what comes out of it, and the one door to it.
#pragma once

#include <memory>
#include <optional>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/export.hpp"
#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"
#include "text_import/format/request.hpp"
#include "text_import/format/text_sample.hpp"

namespace textimport {

/// What an analysis says of a text. Views into the text: `lines`, and the fields of the strategies;
/// the Format and the evidence hold none.
struct Analysis {
  Format format;
  Evidence evidence;
  Certainty certainty;
  /// False when the Format is a guess: the caller should ask.
  bool decided = true;
  /// Whether a reader can use the table as it is: the layout is decided, and nothing stands in
  /// Evidence::open_parts.
  bool table_decided = true;
  Reason reason = Reason::NoRecords;
  /// The first record of the data that breaks a rule which the request sets to Error.
  std::optional<Violation> violation;

  LineIndex lines;  ///< of the sample
  /// The records of the sample as the Format splits them, lines above the data among them.
  std::shared_ptr<textio::GenericStrategy> strategy;
  /// The engine's own decision under the first hypothesis; empty when it was not asked, because the
  /// request says how the lines are split.
  std::optional<textio::detection::DetectionReport> engine;
};

/// Analyses a sample, which outlives the result. Deterministic. Takes time linear in the sample for
/// each hypothesis, of which there are at most eight, and for each candidate of the engine; the
/// engine decides once for each hypothesis. Throws std::bad_alloc.
[[nodiscard]] TEXT_IMPORT_API Analysis analyse(TextSample const& sample, Request const& request);

}  // namespace textimport
