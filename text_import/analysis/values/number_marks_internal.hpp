// SPDX-License-Identifier: MIT
//
// Which mark stands before the decimals and which between thousands, in a column and in the whole
// file. Where the one is a point the other is a comma, if it is one of the two at all; so there are
// two styles, and each number speaks for one of them, against it, or leaves it open.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

/// By the mark of decimals.
enum class MarkStyle : std::uint8_t { Point, Comma };

/// The numbers of one column, counted by what they show of marks.
class NumberTally {
 public:
  /// `look` is an Integer or a Real, which begins with so many digits, the first of them a zero or
  /// not.
  void add(ValueLook const& look, std::size_t digits, bool is_zero) noexcept;

  /// How many numbers show the style and fit no other: "1.5", "1,234,567" and "1,234.5" the point.
  [[nodiscard]] std::size_t count_for(MarkStyle style) const noexcept;

  /// How many leave it open: "1,234", "1.234".
  [[nodiscard]] std::size_t count_open() const noexcept;
  [[nodiscard]] std::size_t count_open_commas() const noexcept;

  /// The style for which the other numbers speak where each that has a mark leaves it open. Whole
  /// numbers below 1,000 stand beside thousands, and those above without a mark do not. Empty when
  /// nothing speaks.
  [[nodiscard]] std::optional<MarkStyle> hint() const noexcept;

  /// The style of the column's own numbers; empty when they show none, or both alike.
  [[nodiscard]] std::optional<MarkStyle> own_style() const noexcept;

  /// How many are whole numbers, or have decimals, in the style.
  [[nodiscard]] std::size_t integers(MarkStyle style) const noexcept;
  [[nodiscard]] std::size_t reals(MarkStyle style) const noexcept;

  /// The marks as the column shows them in the style; 0 for none.
  [[nodiscard]] NumberMarks marks(MarkStyle style) const noexcept;

 private:
  struct Counts {
    std::size_t decimals = 0;   ///< numbers in which the mark can only stand before decimals
    std::size_t thousands = 0;  ///< whole numbers in which it can only stand between thousands
    std::size_t either = 0;
    bool between_thousands = false;  ///< seen there, in front of decimals too
  };

  [[nodiscard]] Counts const& of(MarkStyle const style) const noexcept {
    return counts_[static_cast<std::size_t>(style)];
  }

  void add_plain(bool is_integer, std::size_t digits, bool is_zero) noexcept;

  std::array<Counts, 2> counts_;  ///< by the mark that is a style's decimal one
  std::size_t plain_integers_ = 0;
  std::size_t plain_reals_ = 0;
  std::size_t short_integers_ = 0;  ///< plain ones of one to three digits, 0 not counted
  std::size_t long_integers_ = 0;   ///< plain ones of more
  char16_t other_thousands_ = 0;    ///< a blank or an apostrophe
  char16_t other_decimal_ = 0;      ///< a mark that the caller names
};

[[nodiscard]] constexpr MarkStyle opposite(MarkStyle const style) noexcept {
  return style == MarkStyle::Point ? MarkStyle::Comma : MarkStyle::Point;
}

/// Why a file's numbers are read in a style.
enum class StyleBasis : std::uint8_t {
  Default,    ///< nothing tells
  Delimiter,  ///< a semicolon between fields leaves the comma to the decimals
  Hint,       ///< numbers without a mark stand beside those that leave it open
  Proof,      ///< numbers that fit no other style
};

struct FileStyle {
  MarkStyle style = MarkStyle::Point;
  StyleBasis basis = StyleBasis::Default;
};

}  // namespace textimport::analysis
