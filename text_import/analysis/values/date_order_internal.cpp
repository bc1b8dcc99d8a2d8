// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/date_order_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;

struct NumberRun {
  std::size_t digits = 0;
  unsigned value = 0;
};

/// The first two runs of digits; a letter in front of the second ends the search.
std::array<NumberRun, 2> first_numbers(std::u16string_view const text) noexcept {
  std::array<NumberRun, 2> runs{};
  std::size_t run = 0;
  for (char16_t const c : text) {
    if (is_digit(c)) {
      ++runs[run].digits;
      runs[run].value = std::min(runs[run].value * 10 + (c - u'0'), 99999U);
    } else if (runs[run].digits > 0 && ++run == runs.size()) {
      break;
    }
  }
  return runs;
}

}  // namespace

void DateOrderEvidence::add(std::u16string_view const date) noexcept {
  std::u16string_view const day = date.substr(0, date.find_first_of(u" T"));
  if (std::ranges::any_of(day, [](char16_t const c) { return c >= u'A' && c != u'T'; })) {
    return;
  }
  is_numeric_ = true;
  auto const runs = first_numbers(day);
  bool const has_points = day.find(u'.') != std::u16string_view::npos;  // 5.1.2024 is in January
  if (runs[0].digits >= 4) {
    year_is_first_ = true;
  } else if (runs[0].value > 12 || has_points) {
    day_is_first_ = true;
  } else if (runs[1].value > 12) {
    month_is_first_ = true;
  }
}

DateOrder DateOrderEvidence::order() const noexcept {
  if (!is_numeric_) {
    return DateOrder::None;
  }
  if (year_is_first_) {
    return DateOrder::YearFirst;
  }
  if (day_is_first_ == month_is_first_) {
    return DateOrder::Ambiguous;
  }
  return day_is_first_ ? DateOrder::DayFirst : DateOrder::MonthFirst;
}

}  // namespace textimport::analysis
