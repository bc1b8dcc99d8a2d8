// SPDX-License-Identifier: MIT
//
// What the columns of a table hold.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/survey/column_findings.hpp"
#include "text_import/survey/header_rows_internal.hpp"
#include "text_import/survey/reading_internal.hpp"
#include "text_import/survey/sample_lines_internal.hpp"

namespace textimport::survey {

/// One entry for each column, from the regular records of the data. The names are not set.
[[nodiscard]] std::vector<column_findings> describe_columns(reading const& r,
                                                            header_rows const& rows);

/// The one column of a text that is read line by line, from a line on.
[[nodiscard]] column_findings describe_lines(sample_lines const& lines, std::size_t first);

/// Sets the extents of fixed-width columns, from the lines up to, not including, `end`.
void place_columns(std::vector<column_findings>& columns, std::vector<std::size_t> const& widths,
                   sample_lines const& lines, std::size_t first, std::size_t end,
                   std::string_view encoding);

/// The decimal mark of most columns with one; `otherwise` when there is none.
[[nodiscard]] char16_t common_decimal_mark(std::vector<column_findings> const& columns,
                                           char16_t otherwise);

}  // namespace textimport::survey
