// SPDX-License-Identifier: MIT
//
// Delimiters that the engine never guesses, or did not meet where it looks for candidates.
#pragma once

#include <string>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// What a text holds of them, whatever the engine guesses.
struct TextDelimiters {
  std::u16string common;  ///< those of common_delimiters that stand in the text
  /// Sequences of two or three signs, and signs outside ASCII, that nearly every line holds equally
  /// often. Few texts have any.
  std::vector<std::u16string> unusual;
};

[[nodiscard]] TextDelimiters find_text_delimiters(LineIndex const& lines);

/// Common delimiters that stand outside the middle lines only, and the unusual ones.
[[nodiscard]] std::vector<std::u16string> unguessed_delimiters(
    TextDelimiters const& text, textio::detection::DetectionReport const& report);

}  // namespace textimport::analysis
