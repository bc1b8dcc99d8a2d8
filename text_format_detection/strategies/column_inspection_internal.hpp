// SPDX-License-Identifier: MIT
//
// The types of the columns of a sample.
#pragma once

#include <cstddef>
#include <vector>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/strategy_valuation.hpp"

namespace textio::strategies {

/// One ColumnType code for each of the `num_variables` of the score, from the records behind the
/// header lines (null: no records). Adds the counts of the codes to the score's column counters.
/// Throws std::bad_alloc, and leaves the score as it is then.
[[nodiscard]] std::vector<unsigned char> inspect_columns(
    FieldArray const* fields, std::size_t header_lines,
    ostrel::io::text::typedetection::TypeAnalyzerOptions const& options, StrategyValuation& score);

}  // namespace textio::strategies
