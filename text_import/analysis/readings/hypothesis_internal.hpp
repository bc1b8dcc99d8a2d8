// SPDX-License-Identifier: MIT
//
// The questions that an analysis asks of a sample: under other quotes and comment markers, and with
// more in its lines than the engine's readers know, each only where the sample gives reason for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/options.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/task_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// A hypothesis and the options that follow from it.
struct AssumedOptions {
  Hypothesis hypothesis;
  textio::parser::options parsing;
  LineSyntax syntax;  ///< what is given, and what the hypothesis adds
  /// The position of the hypothesis that has the same quotes and comments and adds no syntax.
  std::size_t refined = 0;
};

/// The hypotheses for a sample, the caller's own options first. At most eight.
[[nodiscard]] std::vector<AssumedOptions> propose_hypotheses(LineIndex const& lines,
                                                             Task const& task);

}  // namespace textimport::analysis
