// SPDX-License-Identifier: MIT
//
// What the columns of a table hold.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/column_summary_internal.hpp"
#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

/// One entry for each column, from the regular records of the data. `given`: columns whose types
/// and marks hold whatever the values say, where there are as many.
[[nodiscard]] std::vector<DescribedColumn> describe_columns(Reading const& r,
                                                            HeaderRows const& rows,
                                                            LineIndex const& lines,
                                                            std::vector<Column> const& given);

/// The one column of a text that is read line by line, from a line up to, not including, `end`.
/// `given`: as above.
[[nodiscard]] DescribedColumn describe_lines(LineIndex const& lines, std::size_t first,
                                             std::size_t end, ValueGrammar const& values,
                                             std::vector<Column> const& given);

/// Sets the extents of fixed-width columns, from the lines up to, not including, `end`.
void place_columns(std::vector<Column>& columns, std::vector<std::size_t> const& widths,
                   LineIndex const& lines, std::size_t first, std::size_t end,
                   std::string_view encoding);

/// The decimal mark of most columns with one; 0 when there is none.
[[nodiscard]] char16_t common_decimal_mark(std::vector<Column> const& columns);

}  // namespace textimport::analysis
