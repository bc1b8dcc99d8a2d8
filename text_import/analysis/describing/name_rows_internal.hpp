// SPDX-License-Identifier: MIT
//
// The names of columns, read from the lines that hold them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/describing/table_lines_internal.hpp"

namespace textimport::analysis {

struct NameRows {
  std::vector<std::u16string> names;  ///< as many as num_columns, or none
  std::vector<std::size_t> rows;      ///< positions of the lines whose texts they are
  std::size_t num_columns = 0;
};

struct NameRequest {
  HeaderRows data;
  bool all_are_names = false;  ///< none of the rows holds units
};

/// The names in some lines above the data, top down. A row that has all names, each another, is
/// enough; otherwise the last row with all of them, or what the rows say together. Cells that were
/// merged count for all columns they stand over.
[[nodiscard]] NameRows read_names(TableLines const& lines, std::vector<std::size_t> const& rows,
                                  NameRequest const& request);

/// The names in a comment directly above the data, at a position among the lines.
[[nodiscard]] NameRows find_commented_names(TableLines const& lines, std::size_t first_data);

/// The names in a comment that is known to hold them, by its physical line; none when no line of
/// the reading is there.
[[nodiscard]] NameRows read_commented_names(TableLines const& lines, std::size_t line);

}  // namespace textimport::analysis
