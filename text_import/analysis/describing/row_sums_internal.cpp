// SPDX-License-Identifier: MIT
//
// Numbers are whole thousandths, so that sums are exact. One column is summed up from the line on;
// where that meets the line's number the others are compared too.
#include "text_import/analysis/describing/row_sums_internal.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr std::size_t most_rows_summed = 40;
constexpr std::int64_t one = 1000;

/// Where the decimals begin, npos for none: behind the last mark, unless there are more of its kind
/// or a comma stands before just three digits.
std::size_t decimal_mark_of(view const text) noexcept {
  std::size_t const last = text.find_last_of(u".,");
  if (last == view::npos || text.find(text[last]) != last) {
    return view::npos;
  }
  bool const is_group = text[last] == u',' && text.find(u'.') == view::npos &&
                        textio::platform::leading_digits(text.substr(last + 1)) == 3;
  return is_group ? view::npos : last;
}

/// A number in thousandths; empty for one that is too large.
std::optional<std::int64_t> thousandths(view const text) noexcept {
  constexpr std::int64_t most = 1'000'000'000'000;
  std::size_t const mark = decimal_mark_of(text);
  std::int64_t value = 0;
  std::int64_t place = one;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!textio::platform::is_digit(text[i])) {
      if (text[i] == u'e' || text[i] == u'E' || text[i] == u'/' || text[i] == u':') {
        return std::nullopt;
      }
      continue;
    }
    std::int64_t const digit = text[i] - u'0';
    if (mark == view::npos || i < mark) {
      value = value * 10 + digit * one;
    } else if (place > 1) {
      place /= 10;
      value += digit * place;
    }
    if (value > most) {
      return std::nullopt;
    }
  }
  bool const is_negative = text.find_first_of(u"-(") == 0;
  return is_negative ? -value : value;
}

/// Rounded parts rarely add up to the very sum.
bool is_near(std::int64_t const sum, std::int64_t const value) noexcept {
  std::int64_t const difference = sum > value ? sum - value : value - sum;
  std::int64_t const size = value < 0 ? -value : value;
  return difference * 1000 <= size;
}

/// The numbers of some rows, row after row.
class NumberTable {
 public:
  NumberTable(TableLines const& lines, std::vector<TableLine const*> const& filled)
      : columns_(lines.columns_seen()), numbers_(filled.size() * columns_) {
    for (std::size_t row = 0; row < filled.size(); ++row) {
      auto const cells = lines.cells(*filled[row]);
      for (std::size_t i = 0; i < std::min(cells.size(), columns_); ++i) {
        if (cells[i].kind == CellKind::Number) {
          numbers_[row * columns_ + i] = thousandths(cells[i].text).value_or(0);
        }
      }
    }
  }

  [[nodiscard]] std::size_t rows() const noexcept {
    return columns_ == 0 ? 0 : numbers_.size() / columns_;
  }

  [[nodiscard]] std::size_t columns() const noexcept { return columns_; }

  /// 0 for what is no number.
  [[nodiscard]] std::int64_t at(std::size_t const row, std::size_t const column) const noexcept {
    return numbers_[row * columns_ + column];
  }

 private:
  std::size_t columns_;
  std::vector<std::int64_t> numbers_;
};

class SumFinder {
 public:
  explicit SumFinder(NumberTable numbers) : numbers_(std::move(numbers)) {}

  /// `step`: 1 for the rows below, -1 for those above.
  [[nodiscard]] bool is_sum(std::size_t const row, std::ptrdiff_t const step) const {
    std::optional<std::size_t> const anchor = anchor_of(row);
    if (!anchor) {
      return false;
    }
    std::int64_t sum = 0;
    for (std::size_t count = 1; count <= most_rows_summed; ++count) {
      auto const at = static_cast<std::ptrdiff_t>(row) + step * static_cast<std::ptrdiff_t>(count);
      if (at < 0 || at >= static_cast<std::ptrdiff_t>(numbers_.rows())) {
        return false;
      }
      sum += numbers_.at(static_cast<std::size_t>(at), *anchor);
      if (count >= 2 && is_near(sum, numbers_.at(row, *anchor)) && others_agree(row, step, count)) {
        return true;
      }
    }
    return false;
  }

 private:
  /// The last column with a number that is not 0: the first ones may number the rows.
  [[nodiscard]] std::optional<std::size_t> anchor_of(std::size_t const row) const {
    for (std::size_t column = numbers_.columns(); column-- > 0;) {
      if (numbers_.at(row, column) != 0) {
        return column;
      }
    }
    return std::nullopt;
  }

  [[nodiscard]] bool others_agree(std::size_t const row, std::ptrdiff_t const step,
                                  std::size_t const count) const {
    std::size_t agreed = 0;
    std::size_t compared = 0;
    for (std::size_t column = 0; column < numbers_.columns(); ++column) {
      if (numbers_.at(row, column) == 0) {
        continue;
      }
      std::int64_t sum = 0;
      auto at = static_cast<std::ptrdiff_t>(row);
      for (std::size_t i = 0; i < count; ++i) {
        at += step;
        sum += numbers_.at(static_cast<std::size_t>(at), column);
      }
      ++compared;
      agreed += is_near(sum, numbers_.at(row, column)) ? 1U : 0U;
    }
    return agreed > 1 && agreed * 2 > compared;  // one column alone adds up by chance
  }

  NumberTable numbers_;
};

}  // namespace

std::vector<RowSums> find_row_sums(TableLines const& lines,
                                   std::vector<TableLine const*> const& filled) {
  SumFinder const finder(NumberTable(lines, filled));
  std::vector<RowSums> sums(filled.size());
  for (std::size_t row = 0; row < filled.size(); ++row) {
    sums[row] = {finder.is_sum(row, -1), finder.is_sum(row, 1)};
  }
  return sums;
}

}  // namespace textimport::analysis
