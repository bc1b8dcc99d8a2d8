// SPDX-License-Identifier: MIT
//
// Pure functions on the numbers of fields that the lines of a sample have.
//
// `counts` has one entry for each line (record) of the sample, 0 for an empty line.
#pragma once

#include <cstddef>
#include <vector>

namespace textio::strategies {

/// The number of leading lines that hold exactly one field.
[[nodiscard]] std::size_t count_single_field_lines(std::vector<std::size_t> const& counts);

/// The typical number of fields of the lines from position `skip` on: the lower median of the
/// counts of 2 or more. 1 when fewer than a third of more than ten non-empty lines have so many,
/// or none has.
[[nodiscard]] std::size_t typical_field_count(std::vector<std::size_t> const& counts,
                                              std::size_t skip);

/// The distance from `typical` of each non-empty line, up to the last line that has exactly the
/// typical count; empty when no line has it. Empty lines make no entry, so that positions in the
/// result count non-empty lines.
[[nodiscard]] std::vector<std::size_t> field_count_deviations(
    std::vector<std::size_t> const& counts, std::size_t typical);

/// The line at which data begins, for `h` header lines found among the non-empty lines: moved past
/// each of the empty lines (ascending positions) at or before it, and then past lines with fewer
/// than two fields. At most the number of lines, unless `h` is larger itself.
[[nodiscard]] std::size_t to_line_index(std::size_t h, std::vector<std::size_t> const& empty_lines,
                                        std::vector<std::size_t> const& counts);

/// The mean of the values from position `first` on; NaN when there are none.
[[nodiscard]] double mean_from(std::vector<std::size_t> const& values, std::size_t first);

/// The distance between two counts.
[[nodiscard]] constexpr std::size_t distance(std::size_t const a, std::size_t const b) noexcept {
  return a > b ? a - b : b - a;
}

}  // namespace textio::strategies
