// SPDX-License-Identifier: MIT
//
// What stands at each position of the lines: whether characters of one kind stand below each other,
// which is how columns of fixed width show themselves, and where such columns begin.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// Kinds of characters by position. The end of a short line counts as blanks up to the length that
/// half of the lines reach, so that lines need not be padded.
class ColumnProfile {
 public:
  /// Profiles the lines from `first` up to, not including, `end`; blank lines are left out.
  ColumnProfile(LineIndex const& lines, std::size_t first, std::size_t end);

  /// How much more the lines agree on the kind of character at a position than characters drawn
  /// from all over them would: 0 not at all, 1 entirely. The smallest of the values for the left,
  /// middle and right third of the lines: logs and programs agree at the left only.
  [[nodiscard]] double agreement() const noexcept { return agreement_; }

  /// The share of lines whose length is about the usual one, blanks at their ends counted or not,
  /// whichever is larger.
  [[nodiscard]] double equal_lengths() const noexcept { return equal_lengths_; }

  [[nodiscard]] std::size_t num_lines() const noexcept { return num_lines_; }

  /// Whether blanks that run through all lines part at least three columns, to the right as well.
  [[nodiscard]] bool has_gutters() const;

  /// Whether the line has hardly a character of a kind that is rare at its position.
  [[nodiscard]] bool fits(std::u16string_view line) const noexcept;

  /// The widths of the columns, in code units: a column begins where a blank position ends, and in
  /// long lines without any such place where digits begin behind something else.
  [[nodiscard]] std::vector<std::size_t> widths() const;

 private:
  static constexpr std::size_t num_kinds = 12;
  using KindCounts = std::array<std::uint32_t, num_kinds>;

  [[nodiscard]] double agreement_between(std::size_t first, std::size_t end) const noexcept;
  [[nodiscard]] bool is_blank_at(std::size_t position) const noexcept;
  [[nodiscard]] bool is_mostly_digit(std::size_t position) const noexcept;
  [[nodiscard]] std::vector<std::size_t> widths_between_blanks() const;
  [[nodiscard]] std::vector<std::size_t> widths_of_touching() const;

  std::vector<KindCounts> counts_;  // by position
  std::size_t num_lines_ = 0;
  std::size_t usual_length_ = 0;
  double agreement_ = 0;
  double equal_lengths_ = 0;
};

}  // namespace textimport::analysis
