// SPDX-License-Identifier: MIT
//
// Fixed-width columns of lines that are padded to one width: all data lines are laid over each
// other, and the positions that are blank in every line separate the columns.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field_array.hpp"

namespace textio::detection {

/// The overlay of lines: for each position, whether every line so far has a space there. (Only the
/// space is blank here, a tab is not.) Keeps the number of columns up to date while the map loses
/// blanks, so that overlaying a line costs no more than the line is long.
class BlankMap {
 public:
  /// Starts with `length` blank positions.
  explicit BlankMap(std::size_t length) : blank_(length, 1) {}

  /// Lays a line over the map. A longer line adds positions that are not blank; positions behind
  /// the end of a shorter line stay as they are.
  void overlay(std::u16string_view line);

  /// The number of columns in the map, at least 1: runs of positions that are not blank.
  [[nodiscard]] std::size_t num_columns() const noexcept {
    return num_text_starts_ == 0 ? 1 : num_text_starts_;
  }

  /// The widths of the columns in code units, left to right; their sum is the length of the map.
  /// A column runs from the first blank behind the text of the one before it to the end of its own
  /// text: leading blanks belong to the column on their right.
  [[nodiscard]] std::vector<std::size_t> column_widths() const;

 private:
  void extend(std::size_t length);
  void set_text(std::size_t position);

  std::vector<unsigned char> blank_;  // 1 where every line has a space
  std::size_t num_text_starts_ = 0;   // positions not blank whose left neighbour is, or is missing
};

/// What the overlay of the data lines shows.
struct FixedWidthLayout {
  std::size_t num_columns;  ///< after the last line, at least 1
  double variation;         ///< mean distance of the columns after each line from their typical
                            ///< number; NaN without data lines
  std::vector<std::size_t> widths;
};

/// Overlays the lines from `header_lines` on. `lines` holds one field for each line.
[[nodiscard]] FixedWidthLayout overlay_lines(FieldArray const& lines, std::size_t header_lines);

}  // namespace textio::detection
