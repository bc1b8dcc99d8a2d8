// SPDX-License-Identifier: MIT
//
// Which of the first records of a table are data and which say what the data are: names, units,
// rulers.
#pragma once

#include <cstddef>
#include <optional>

#include "text_import/survey/reading_internal.hpp"

namespace textimport::survey {

struct header_rows {
  std::size_t first_data = 0;        ///< record
  std::optional<std::size_t> names;  ///< record
};

[[nodiscard]] header_rows find_header_rows(reading const& r);

}  // namespace textimport::survey
