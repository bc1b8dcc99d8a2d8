// SPDX-License-Identifier: MIT
//
// What the lines of a text are: which hold the data of a reading, which hold names, and what stands
// around them and between.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_import/analysis/describing/given_region_internal.hpp"
#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

struct LineRoles {
  HeaderRows rows;
  std::size_t data_starts_at = 0;
  std::size_t data_ends_at = 0;
  /// The lines above and below the data, and groups and totals between them, ascending.
  std::vector<NotedLine> lines;
  std::vector<LineReasons> reasons;  ///< as Evidence::line_reasons
  std::vector<std::size_t> group_lines;
  std::vector<std::size_t> total_lines;
  std::vector<std::u16string> names;    ///< as many as there are columns, or none
  std::vector<std::size_t> name_lines;  ///< where they stand; empty without names
  /// How many columns the names and the longest rows speak for; those of the reading or more.
  std::size_t num_columns = 0;
  /// The share of tables decided like this whose first line, last line and names are right, 0 to 1.
  double certainty = 1;
  std::vector<TablePart> open_parts;
};

/// Decides the roles of all lines together. What is given holds. `sees_end`: the last record is the
/// last of the text. The reading has a table.
[[nodiscard]] LineRoles decide_roles(Reading const& r, LineIndex const& lines,
                                     GivenRegion const& given, bool sees_end);

}  // namespace textimport::analysis
