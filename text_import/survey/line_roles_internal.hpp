// SPDX-License-Identifier: MIT
//
// What the lines above and below the data are.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/survey/header_rows_internal.hpp"
#include "text_import/survey/reading_internal.hpp"
#include "text_import/survey/sample_lines_internal.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport::survey {

/// The lines of a text around its data, and the names in them.
struct surroundings {
  std::size_t data_starts_at = 0;
  std::size_t data_ends_at = 0;
  std::vector<noted_line> lines;
  bool has_names = false;
  std::vector<std::u16string> names;  ///< as many as there are columns when there are names
};

/// Looks around the table of a reading. `rows` tells its header rows.
[[nodiscard]] surroundings look_around(reading const& r, header_rows const& rows,
                                       sample_lines const& lines);

}  // namespace textimport::survey
