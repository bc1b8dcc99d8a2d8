// SPDX-License-Identifier: MIT
//
// Whether a text draws its table: bars at both ends of lines, and rulers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

struct Borders {
  bool has_outer_bars = false;
  bool has_rulers = false;
  std::vector<std::u16string> bars;  ///< between columns, the most frequent one first
};

/// The borders that the head of a text shows, up to, not including, the line `end`.
[[nodiscard]] std::optional<Borders> find_borders(LineIndex const& lines, std::size_t end);

}  // namespace textimport::analysis
