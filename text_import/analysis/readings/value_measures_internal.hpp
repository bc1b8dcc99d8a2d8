// SPDX-License-Identifier: MIT
//
// What the values of a reading say of it: whether they hold together, agree with their columns, and
// stand below each other.
#pragma once

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

/// Sets the measures of the values of the block, from a sample of its regular records. Dearer than
/// the measures of records.
void measure_values(Reading& r, LineIndex const& lines);

}  // namespace textimport::analysis
