// SPDX-License-Identifier: MIT
//
// The lines of a text as a reading cuts them: which of them hold anything, and what their cells
// look like to somebody who asks what each line is for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

enum class CellKind : std::uint8_t { Empty, Missing, Number, Time, Boolean, Text };

inline constexpr std::size_t num_cell_kinds = 6;

struct LineCell {
  std::u16string_view text;  ///< without quotes and blanks around it
  CellKind kind = CellKind::Empty;
  bool is_word = false;  ///< a text without blanks
};

/// What is plain about a line before its cells are compared with others. A Plain one is data: a
/// record far from both ends of a long table, with all fields and most of them filled. Its cells
/// are not looked at.
enum class LineKind : std::uint8_t { Filled, Blank, Ruler, Comment, Separator, Plain };

struct TableLine {
  std::size_t line = 0;    ///< the first physical line
  std::size_t end = 0;     ///< the physical line behind the last
  std::size_t record = 0;  ///< position among the records of the reading
  LineKind kind = LineKind::Filled;
  std::size_t num_fields = 0;  ///< as the record has them, also those that are not looked at
  std::size_t num_filled = 0;  ///< of the cells
  std::size_t first_cell = 0;
  std::size_t num_cells = 0;
};

/// All lines of the records of a reading, in order.
class TableLines {
 public:
  /// `is_open`: nothing is given of the lines of the data, so that those in the middle of a long
  /// table may be Plain.
  TableLines(Reading const& r, LineIndex const& lines, bool is_open = true);

  [[nodiscard]] std::vector<TableLine> const& all() const noexcept { return lines_; }

  /// The cells of a line, at most `columns_seen()`.
  [[nodiscard]] std::span<LineCell const> cells(TableLine const& line) const noexcept {
    return std::span<LineCell const>(cells_).subspan(line.first_cell, line.num_cells);
  }

  /// How many columns are looked at.
  [[nodiscard]] std::size_t columns_seen() const noexcept { return columns_seen_; }

  /// How many columns the table has.
  [[nodiscard]] std::size_t columns() const noexcept { return columns_; }

  /// The text of a line as it stands in the file, up to its first line ending.
  [[nodiscard]] std::u16string_view text(TableLine const& line) const noexcept {
    return index_[line.line];
  }

  [[nodiscard]] Reading const& reading() const noexcept { return reading_; }

 private:
  void add_rulers(std::size_t record, std::size_t first, std::size_t end);
  [[nodiscard]] std::size_t first_ruler(std::size_t line, std::size_t end) const;
  [[nodiscard]] bool is_plain(std::size_t record) const;
  void add_record(std::size_t record, std::size_t end);
  void add_cells(TableLine& line);
  void add_pieces(TableLine& line);
  void add_cell(TableLine& line, std::u16string_view field);

  Reading const& reading_;
  LineIndex const& index_;
  bool is_open_;
  std::size_t columns_;
  std::size_t columns_seen_;
  std::vector<TableLine> lines_;
  std::vector<LineCell> cells_;
};

/// A year, alone or with little behind it: "1999", "2007*", "2008.0", "1999-2000".
[[nodiscard]] bool is_year(std::u16string_view text) noexcept;

/// A year stands somewhere in the text: "2003 $ thousands", "May 2008".
[[nodiscard]] bool holds_year(std::u16string_view text) noexcept;

}  // namespace textimport::analysis
