// SPDX-License-Identifier: MIT
//
// Which records of a table are data, and which above them say what the data are (names, units,
// rulers) or stand below them as notes.
#pragma once

#include <cstddef>
#include <optional>

#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

/// Positions of records.
struct HeaderRows {
  std::size_t first_data = 0;
  std::size_t last_data = 0;
  std::optional<std::size_t> names;
  /// The caller says that no line holds names.
  bool has_no_names = false;
};

[[nodiscard]] HeaderRows find_header_rows(Reading const& r);

}  // namespace textimport::analysis
