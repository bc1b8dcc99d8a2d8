// SPDX-License-Identifier: MIT
//
// How much of a text an analysis looked at.
#pragma once

#include <cstddef>

#include "text_import/analysis/analysis.hpp"

namespace textimport::reporting {

struct SampledPart {
  std::size_t num_lines = 0;          ///< lines of the text that were looked at, from the first on
  std::size_t num_records = 0;        ///< records of the data among them
  std::size_t num_whole_records = 0;  ///< of these, those with a field for each column
  bool is_all = true;                 ///< the text has no further lines
};

[[nodiscard]] SampledPart sampled_part(Analysis const& analysis);

}  // namespace textimport::reporting
