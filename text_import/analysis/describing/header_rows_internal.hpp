// SPDX-License-Identifier: MIT
//
// Which records of a reading are data.
#pragma once

#include <cstddef>

namespace textimport::analysis {

/// Positions of records.
struct HeaderRows {
  std::size_t first_data = 0;
  std::size_t last_data = 0;  ///< included
};

}  // namespace textimport::analysis
