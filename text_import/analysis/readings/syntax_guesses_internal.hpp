// SPDX-License-Identifier: MIT
//
// What the lines of a text may have beside delimiters, quotes and comment lines, each only where
// the text shows a reason. Cheap: the head of the text is looked through once for each.
#pragma once

#include <string>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/task_internal.hpp"
#include "text_import/format/line_syntax.hpp"

namespace textimport::analysis {

struct SyntaxGuess {
  LineSyntax syntax;
  std::vector<std::u16string> delimiters;       ///< those that belong to it; empty: any
  std::vector<std::u16string> comment_markers;  ///< of comments at the ends of lines
};

/// The guesses, the most telling one first; none where the caller says all of it.
[[nodiscard]] std::vector<SyntaxGuess> guess_line_syntax(LineIndex const& lines, Task const& task);

}  // namespace textimport::analysis
