// SPDX-License-Identifier: MIT
//
// Rows of values as an aligned table, and the columns of fixed-width text under a ruler.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace textimport::reporting {

struct TableColumn {
  std::u16string heading;
  bool to_the_right = false;
};

/// Where a table may stand.
struct TableSpace {
  std::size_t width = 80;  ///< cells a line
  std::size_t indent = 4;  ///< blanks in front of each line
};

using Rows = std::vector<std::vector<std::u16string>>;

/// A heading, a rule and the rows, two blanks between columns. Long values are cut; columns that
/// find no room are left out, which a last line says. Fields beyond the columns are not shown.
[[nodiscard]] std::string aligned_table(std::vector<TableColumn> const& columns, Rows const& rows,
                                        TableSpace space);

/// A ruler on which each column begins with "|" and names its width, and the rows between the same
/// bars. `widths` has one entry for each column, and so has `names`, or none: they stand above the
/// ruler, cut to the width of their column.
[[nodiscard]] std::string ruled_table(std::vector<std::size_t> const& widths,
                                      std::vector<std::u16string> const& names, Rows const& rows,
                                      TableSpace space);

}  // namespace textimport::reporting
