// SPDX-License-Identifier: MIT
//
// Readings that see more in a line than a plain one: each is kept in the place of the plain reading
// at the same delimiter, or not at all. No rule has to choose between the two.
#pragma once

#include <vector>

#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

/// Of the readings at one delimiter that differ in the syntax of lines only, those under the
/// hypothesis that leaves the least of the text unexplained stay. A guess that the text itself
/// shows, such as borders, wins where it leaves no more than the plain reading; any other has to
/// leave less.
void settle_refinements(std::vector<Reading>& readings,
                        std::vector<AssumedOptions> const& hypotheses);

}  // namespace textimport::analysis
