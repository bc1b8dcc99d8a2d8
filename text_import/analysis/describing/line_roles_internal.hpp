// SPDX-License-Identifier: MIT
//
// What the lines above and below the data are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// The lines of a text around its data, and the names in them.
struct Surroundings {
  std::size_t data_starts_at = 0;
  std::size_t data_ends_at = 0;
  std::vector<NotedLine> lines;
  std::vector<std::u16string> names;    ///< as many as there are columns, or none
  std::vector<std::size_t> name_lines;  ///< where they stand; empty without names
};

/// Looks around the table of a reading. `rows` tells its header rows.
[[nodiscard]] Surroundings look_around(Reading const& r, HeaderRows const& rows,
                                       LineIndex const& lines);

}  // namespace textimport::analysis
