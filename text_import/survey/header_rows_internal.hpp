// SPDX-License-Identifier: MIT
//
// Which records of a table are data, and which above them say what the data are (names, units,
// rulers) or stand below them as notes.
#pragma once

#include <cstddef>
#include <optional>

#include "text_import/survey/reading_internal.hpp"

namespace textimport::survey {

/// Positions of records.
struct header_rows {
  std::size_t first_data = 0;
  std::size_t last_data = 0;
  std::optional<std::size_t> names;
};

[[nodiscard]] header_rows find_header_rows(reading const& r);

}  // namespace textimport::survey
