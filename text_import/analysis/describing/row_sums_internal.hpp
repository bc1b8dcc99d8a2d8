// SPDX-License-Identifier: MIT
//
// Rows that are the sums of rows above or below them.
#pragma once

#include <vector>

#include "text_import/analysis/describing/table_lines_internal.hpp"

namespace textimport::analysis {

struct RowSums {
  bool of_above = false;
  bool of_below = false;
};

/// One entry for each of the lines, which hold something and follow each other. Each is compared
/// with the sums of up to some dozens of its neighbours.
[[nodiscard]] std::vector<RowSums> find_row_sums(TableLines const& lines,
                                                 std::vector<TableLine const*> const& filled);

}  // namespace textimport::analysis
