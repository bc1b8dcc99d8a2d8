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

namespace textimport::analysis {

/// Kinds of characters by position. The end of a short line counts as blanks up to the length that
/// half of the lines reach, so that lines need not be padded.
class ColumnProfile {
 public:
  /// Profiles the lines, which hold more than blanks.
  explicit ColumnProfile(std::vector<std::u16string_view> const& lines);

  /// How much more the lines agree on the kind of character at a position than characters drawn
  /// from all over them would: 0 not at all, 1 entirely. The smallest of the values for the left,
  /// middle and right third of the lines: logs and programs agree at the left only.
  [[nodiscard]] double agreement() const noexcept { return agreement_; }

  /// The same of the lines up to a position.
  [[nodiscard]] double agreement_before(std::size_t position) const noexcept;

  /// The share of lines whose length is about the usual one, blanks at their ends counted or not,
  /// whichever is larger.
  [[nodiscard]] double equal_lengths() const noexcept { return equal_lengths_; }

  [[nodiscard]] std::size_t num_lines() const noexcept { return num_lines_; }

  /// The length of the lines, in code units: the median.
  [[nodiscard]] std::size_t usual_length() const noexcept { return usual_length_; }

  /// Of the longest line without the blanks at its end, at most 4096.
  [[nodiscard]] std::size_t longest() const noexcept { return counts_.size(); }

  /// Where columns begin, 0 first: behind blanks that run through all but `exceptions` lines, up to
  /// the usual length. In two or three lines blanks stand below each other by chance, so that a
  /// single one has to have digits beside it in each.
  [[nodiscard]] std::vector<std::size_t> starts_behind_blanks(std::size_t exceptions) const;

  /// Where digits begin behind something else in nearly all lines, 0 first.
  [[nodiscard]] std::vector<std::size_t> starts_of_digits() const;

  /// Whether the line has hardly a character before `end` of a kind that is rare at its position.
  [[nodiscard]] bool fits(std::u16string_view line, std::size_t end) const noexcept;

 private:
  static constexpr std::size_t num_kinds = 12;
  using KindCounts = std::array<std::uint32_t, num_kinds>;

  [[nodiscard]] double agreement_between(std::size_t first, std::size_t end) const noexcept;
  [[nodiscard]] std::size_t filled_at(std::size_t position) const noexcept;
  [[nodiscard]] bool is_mostly_digit(std::size_t position) const noexcept;
  [[nodiscard]] bool is_gutter(std::size_t first, std::size_t end) const noexcept;

  std::vector<KindCounts> counts_;  // by position
  std::size_t num_lines_ = 0;
  std::size_t usual_length_ = 0;
  double agreement_ = 0;
  double equal_lengths_ = 0;
};

}  // namespace textimport::analysis
