// SPDX-License-Identifier: MIT
//
// Delimiters that the library never guesses, or did not meet where it looks for candidates.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// Usual delimiters that stand outside the middle lines only, doubled delimiters such as "||", and
/// signs outside ASCII that every line holds equally often. Few texts have any. `held`: the usual
/// ones that stand in the text at all.
[[nodiscard]] std::vector<std::u16string> unguessed_delimiters(
    LineIndex const& lines, std::u16string_view held,
    textio::detection::DetectionReport const& report);

}  // namespace textimport::analysis
