// SPDX-License-Identifier: MIT
//
// The score of one strategy: what its reading of the sample looks like, in numbers that the
// ranking rules compare.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "text_format_detection/model/options.hpp"

namespace textio {

/// The score record of one strategy. Lines are records of the sample; a line without fields is
/// empty. Starts at the worst values.
struct StrategyValuation {
  /// Mean distance of the non-empty lines' field counts from the typical count, over the lines up
  /// to the last one that has the typical count. +infinity when there is no typical count.
  double mean_deviation = std::numeric_limits<double>::infinity();
  /// The same mean over the data lines alone, behind the header lines.
  double data_variation = std::numeric_limits<double>::infinity();
  /// Records in the sample, without the empty ones at its end.
  std::size_t num_records = 0;
  /// The typical number of fields a line: the lower median of the counts of 2 or more, or 1 when
  /// the lines mostly hold fewer.
  std::int32_t typical_fields = 1;
  /// The largest number of fields of a data line, at least 1.
  std::size_t num_variables = 1;
  /// Columns whose type is decided.
  std::int32_t typed_columns = 0;
  /// Columns of dates without a time of day, and of durations.
  std::int32_t date_columns = 0;
  /// Columns of numbers.
  std::int32_t numeric_columns = 0;
  /// Columns of dates with a time of day.
  std::int32_t datetime_columns = 0;
  /// Columns whose value is a lone delimiter character.
  std::int32_t delimiter_columns = 0;
  /// The preference of the hypothesis itself, lower is preferred: the position of a single
  /// delimiter in ",\t; " (for any other single delimiter the largest size_t as a double), 3.5 for
  /// space-aligned, +infinity otherwise.
  double prior_rank = std::numeric_limits<double>::infinity();
  /// The header lines in force when the valuation was completed; meaningless before.
  std::size_t header_lines = unknown_count;
};

}  // namespace textio
