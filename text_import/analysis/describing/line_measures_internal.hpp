// SPDX-License-Identifier: MIT
//
// What can be counted of a line, for itself and against what its columns hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/column_habits_internal.hpp"
#include "text_import/analysis/describing/table_lines_internal.hpp"

namespace textimport::analysis {

/// What is counted of one line.
struct LineMeasures {
  std::size_t cells = 0;
  std::size_t filled = 0;
  std::size_t gaps = 0;
  std::size_t numbers = 0;
  std::size_t years = 0;
  std::size_t year_texts = 0;
  std::size_t in_brackets = 0;
  std::size_t steps_up = 0;
  bool counts_up = true;
  bool has_decimals = false;
  std::size_t texts = 0;
  std::size_t words = 0;
  std::size_t identifiers = 0;
  std::size_t repeated = 0;
  std::size_t longest = 0;
  bool has_unit = false;
  bool has_address = false;
  bool has_sentence = false;
  bool first_is_empty = false;
  std::u16string_view first_text;  ///< of the first filled cell
  std::size_t indentation = 0;
  // Against the columns.
  std::size_t typed = 0;
  std::size_t agreements = 0;
  std::size_t conflicts = 0;
  std::size_t numbers_among_texts = 0;
  std::size_t found_again = 0;
  std::size_t found_nowhere = 0;
  std::size_t compared = 0;
  std::size_t odd = 0;
  std::vector<CellKind> kinds;
  bool fits = false;
  bool is_filled_like_most = false;
};

/// Measures lines of a table, which outlives the object.
class LineMeasurer {
 public:
  /// `filled`: the lines that hold something.
  LineMeasurer(TableLines const& lines, std::vector<TableLine const*> const& filled);

  [[nodiscard]] LineMeasures measure(TableLine const& line) const;

  [[nodiscard]] ColumnHabits const& habits() const noexcept { return habits_; }

  /// How many columns hold numbers, times or truth values.
  [[nodiscard]] std::size_t typed_columns() const noexcept { return typed_columns_; }

  /// In all lines: numbers, and those that are years.
  [[nodiscard]] std::size_t numbers() const noexcept { return numbers_; }

  [[nodiscard]] std::size_t years() const noexcept { return years_; }

 private:
  void compare(LineMeasures& m, LineCell const& cell, std::size_t i) const;
  [[nodiscard]] bool does_fit(LineMeasures const& m, TableLine const& line) const;

  TableLines const& lines_;
  ColumnHabits habits_;
  std::size_t typed_columns_;
  std::vector<std::map<std::u16string_view, std::size_t>> texts_;  ///< of each column, with counts
  std::vector<std::size_t> num_texts_;
  std::size_t years_ = 0;
  std::size_t numbers_ = 0;
};

/// How many words apart by blanks the text has.
[[nodiscard]] std::size_t count_words(std::u16string_view text) noexcept;

}  // namespace textimport::analysis
