// SPDX-License-Identifier: MIT
//
// What the name of a column says of values that leave it open.
#pragma once

#include <vector>

#include "text_import/format/column.hpp"

namespace textimport::analysis {

/// Numbers count the seconds since 1970 where their column's name speaks of a time: `possible` has
/// the unit that the numbers of each column would have. Times of day are durations where the name
/// says so.
void settle_by_names(std::vector<Column>& columns, std::vector<EpochUnit> const& possible);

}  // namespace textimport::analysis
