// SPDX-License-Identifier: MIT
//
// What the columns of a table hold.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/survey/column_findings.hpp"
#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// One entry for each column, from the regular records of the data. The names are not set.
[[nodiscard]] std::vector<ColumnFindings> describe_columns(Reading const& r,
                                                            HeaderRows const& rows);

/// The one column of a text that is read line by line, from a line on.
[[nodiscard]] ColumnFindings describe_lines(LineIndex const& lines, std::size_t first);

/// Sets the extents of fixed-width columns, from the lines up to, not including, `end`.
void place_columns(std::vector<ColumnFindings>& columns, std::vector<std::size_t> const& widths,
                   LineIndex const& lines, std::size_t first, std::size_t end,
                   std::string_view encoding);

/// The decimal mark of most columns with one; `otherwise` when there is none.
[[nodiscard]] char16_t common_decimal_mark(std::vector<ColumnFindings> const& columns,
                                           char16_t otherwise);

}  // namespace textimport::analysis
