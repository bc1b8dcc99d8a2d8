// SPDX-License-Identifier: MIT
//
// How much each measure speaks for a reading (above 0) or against it, by the kind of reading.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "text_import/analysis/weighing/measures_internal.hpp"

namespace textimport::analysis {

struct MeasureWeights {
  std::string_view measure;
  std::array<double, num_reading_kinds> of_kind;  ///< in the order of ReadingKind
};

/// One entry for each measure, in their order.
[[nodiscard]] std::span<MeasureWeights const> all_weights() noexcept;

// Below this share of the score an answer is not decided.
extern double const decided_from;

}  // namespace textimport::analysis
