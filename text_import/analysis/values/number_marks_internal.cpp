// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/number_marks_internal.hpp"

namespace textimport::analysis {

namespace {

constexpr std::array<char16_t, 2> style_marks{u'.', u','};

constexpr char16_t mark_of(MarkStyle const style) noexcept {
  return style_marks[static_cast<std::size_t>(style)];
}

constexpr std::optional<MarkStyle> style_of(char16_t const mark) noexcept {
  if (mark != u'.' && mark != u',') {
    return std::nullopt;
  }
  return mark == u'.' ? MarkStyle::Point : MarkStyle::Comma;
}

}  // namespace

void NumberTally::add(ValueLook const& look, std::size_t const digits,
                      bool const is_zero) noexcept {
  auto const decimal = style_of(look.marks.decimal);
  auto const thousands = style_of(look.marks.thousands);
  other_decimal_ = look.marks.decimal != 0 && !decimal ? look.marks.decimal : other_decimal_;
  other_thousands_ =
      look.marks.thousands != 0 && !thousands ? look.marks.thousands : other_thousands_;
  if (!decimal && !thousands) {
    add_plain(look.shape == ValueShape::Integer, digits, is_zero);
    return;
  }
  bool const either = look.marks.either;
  if (thousands) {
    Counts& counts = counts_[static_cast<std::size_t>(*thousands)];
    counts.between_thousands = counts.between_thousands || !either;
  }
  Counts& counts = counts_[static_cast<std::size_t>(decimal ? *decimal : *thousands)];
  ++(either ? counts.either : decimal ? counts.decimals : counts.thousands);
}

void NumberTally::add_plain(bool const is_integer, std::size_t const digits,
                            bool const is_zero) noexcept {
  ++(is_integer ? plain_integers_ : plain_reals_);
  if (is_integer && other_thousands_ == 0 && digits > 0) {
    short_integers_ += digits <= 3 && !is_zero ? 1U : 0U;
    long_integers_ += digits > 3 ? 1U : 0U;
  }
}

std::size_t NumberTally::count_for(MarkStyle const style) const noexcept {
  return of(style).decimals + of(opposite(style)).thousands;
}

std::size_t NumberTally::count_open_commas() const noexcept {
  return of(MarkStyle::Comma).either;
}

std::size_t NumberTally::count_open() const noexcept {
  return of(MarkStyle::Point).either + count_open_commas();
}

std::optional<MarkStyle> NumberTally::hint() const noexcept {
  std::size_t const points = of(MarkStyle::Point).either;
  std::size_t const commas = count_open_commas();
  bool const are_thousands = short_integers_ > 0 && long_integers_ == 0;
  bool const are_decimals = long_integers_ > 0 && short_integers_ == 0;
  if (points == commas || are_thousands == are_decimals) {
    return std::nullopt;
  }
  MarkStyle const of_decimals = points > commas ? MarkStyle::Point : MarkStyle::Comma;
  return are_decimals ? of_decimals : opposite(of_decimals);
}

std::optional<MarkStyle> NumberTally::own_style() const noexcept {
  std::size_t const points = count_for(MarkStyle::Point);
  std::size_t const commas = count_for(MarkStyle::Comma);
  if (points == commas) {
    return std::nullopt;
  }
  return points > commas ? MarkStyle::Point : MarkStyle::Comma;
}

std::size_t NumberTally::integers(MarkStyle const style) const noexcept {
  Counts const& other = of(opposite(style));
  return plain_integers_ + other.thousands + other.either;
}

std::size_t NumberTally::reals(MarkStyle const style) const noexcept {
  return plain_reals_ + of(style).decimals + of(style).either;
}

NumberMarks NumberTally::marks(MarkStyle const style) const noexcept {
  NumberMarks marks{other_decimal_, other_thousands_, false};
  if (of(style).decimals + of(style).either > 0) {
    marks.decimal = mark_of(style);
  }
  Counts const& other = of(opposite(style));
  if (other.between_thousands || other.either > 0) {
    marks.thousands = mark_of(opposite(style));
  }
  return marks;
}

}  // namespace textimport::analysis
