// SPDX-License-Identifier: MIT
//
// What the columns of a table usually hold: the measure of a line that may be none of the data.
#pragma once

#include <array>
#include <cstddef>
#include <set>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/table_lines_internal.hpp"

namespace textimport::analysis {

/// What the texts of a column have in common.
struct TextHabit {
  std::size_t count = 0;
  std::size_t with_digit = 0;
  std::size_t with_blank = 0;
  std::size_t with_capital_first = 0;
  std::size_t with_small_first = 0;
  std::size_t in_capitals = 0;
  std::size_t shortest = 0;
  std::size_t longest = 0;
};

struct ColumnHabit {
  /// What two thirds of its values are; Empty when they are this and that.
  CellKind kind = CellKind::Empty;
  std::size_t filled = 0;
  TextHabit texts;
};

/// The habits of the columns of some lines.
class ColumnHabits {
 public:
  explicit ColumnHabits(TableLines const& lines);

  [[nodiscard]] std::vector<ColumnHabit> const& columns() const noexcept { return columns_; }

  /// How many cells of a line are usually filled; 0 without lines of several cells.
  [[nodiscard]] std::size_t usually_filled() const noexcept { return usually_filled_; }

  /// The column holds numbers, times or truth values.
  [[nodiscard]] static bool is_typed(ColumnHabit const& column) noexcept {
    return column.kind == CellKind::Number || column.kind == CellKind::Time ||
           column.kind == CellKind::Boolean;
  }

  /// Whether the text is unlike all or nearly all texts of its column.
  [[nodiscard]] static bool is_odd(TextHabit const& habit, std::u16string_view text) noexcept;

 private:
  std::vector<ColumnHabit> columns_;
  std::size_t usually_filled_ = 0;
};

}  // namespace textimport::analysis
