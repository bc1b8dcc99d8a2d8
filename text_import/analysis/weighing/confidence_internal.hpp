// SPDX-License-Identifier: MIT
//
// How sure an answer is, from what speaks for it and what is left unexplained.
#pragma once

#include <cstddef>
#include <vector>

#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

// Below this an answer is a guess.
inline constexpr double decided_from = 0.5;

/// For a table: the reading at `winner`, beside the others.
[[nodiscard]] double confidence_of_table(std::vector<Reading> const& readings, std::size_t winner);

/// For a text that is read line by line: the better a reading as a table almost was, the less.
[[nodiscard]] double confidence_of_lines(std::vector<Reading> const& readings);

}  // namespace textimport::analysis
