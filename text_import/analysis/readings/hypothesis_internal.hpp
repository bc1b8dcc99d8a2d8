// SPDX-License-Identifier: MIT
//
// The questions that an analysis asks the engine: the same sample under other quotes and comment
// markers, each only where the sample gives reason for it.
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
};

/// The quote of parsing options, 0 for none.
[[nodiscard]] inline char16_t quote_of(textio::parser::options const& parsing) noexcept {
  return parsing.quote_characters.empty() ? u'\0' : parsing.quote_characters.front();
}

/// The hypotheses for a sample, the caller's own options first. At most six.
[[nodiscard]] std::vector<AssumedOptions> propose_hypotheses(LineIndex const& lines,
                                                             Task const& task);

}  // namespace textimport::analysis
