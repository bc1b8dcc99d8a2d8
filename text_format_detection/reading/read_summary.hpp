// SPDX-License-Identifier: MIT
//
// What reading comes to, for the loop that counts and for callers.
#pragma once

#include <cstddef>

namespace textio {

/// What one run of a reading loop did.
struct ReadSummary {
  std::size_t units_consumed = 0;  ///< code units, line endings and comments included
  std::size_t lines_scanned = 0;   ///< records and comment lines
  std::size_t records_stored = 0;  ///< entries added to the field array
};

}  // namespace textio
