// SPDX-License-Identifier: MIT
//
// Names, zones and the calendar: one home for the built-in forms and for the formats.
#include "text_format_detection/platform/datetime_parts_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textio::platform {
namespace {

constexpr std::size_t abbreviation_length = 3;

constexpr std::array<std::u16string_view, 12> month_names = {
    u"january", u"february", u"march",     u"april",   u"may",      u"june",
    u"july",    u"august",   u"september", u"october", u"november", u"december"};

constexpr std::array<std::u16string_view, 7> weekday_names = {
    u"monday", u"tuesday", u"wednesday", u"thursday", u"friday", u"saturday", u"sunday"};

/// The index of the name that the text spells, or the number of names.
std::size_t index_of_name(std::u16string_view const text, NameForm const form,
                          std::span<std::u16string_view const> const names) noexcept {
  auto const spelled = [text, form](std::u16string_view const name) {
    return equals_ignoring_case(
        text, form == NameForm::Abbreviation ? name.substr(0, abbreviation_length) : name);
  };
  return static_cast<std::size_t>(std::find_if(names.begin(), names.end(), spelled) -
                                  names.begin());
}

bool is_leap_year(int const year) noexcept {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

}  // namespace

DateWays ways_of_year(int const year) noexcept {
  if (year < 0) {
    return no_way;
  }
  return is_leap_year(year) ? every_way : DateWays{0b1101};
}

DateWays ways_of_month(int const month) noexcept {
  if (!in_range(month, 1, 12)) {
    return no_way;
  }
  if (month == 2) {
    return 0b0011;
  }
  bool const has_30_days = month == 4 || month == 6 || month == 9 || month == 11;
  return has_30_days ? DateWays{0b0111} : every_way;
}

DateWays ways_of_day(int const day) noexcept {
  if (!in_range(day, 1, 31)) {
    return no_way;
  }
  return static_cast<DateWays>(every_way << std::max(day - 28, 0) & every_way);
}

int number_of_digits(std::u16string_view const text) noexcept {
  if (text.empty() || text.size() > 9) {
    return -1;
  }
  int number = 0;
  for (char16_t const unit : text) {
    if (!is_digit(unit)) {
      return -1;
    }
    number = number * 10 + (unit - u'0');
  }
  return number;
}

int month_number(std::u16string_view const text, NameForm const form) noexcept {
  std::size_t const index = index_of_name(text, form, month_names);
  return index == month_names.size() ? -1 : static_cast<int>(index) + 1;
}

bool is_weekday(std::u16string_view const text, NameForm const form) noexcept {
  return index_of_name(text, form, weekday_names) != weekday_names.size();
}

bool is_meridiem(std::u16string_view const text) noexcept {
  return equals_ignoring_case(text, u"am") || equals_ignoring_case(text, u"pm");
}

bool is_zone(std::u16string_view text) noexcept {
  if (text.empty() || !is_sign(text.front())) {
    return equals_ignoring_case(text, u"z") || equals_ignoring_case(text, u"utc") ||
           equals_ignoring_case(text, u"gmt");
  }
  text.remove_prefix(1);
  if (!in_range(number_of_digits(text.substr(0, 2)), 0, 23) || text.size() < 2) {
    return false;
  }
  std::u16string_view minutes = text.substr(2);
  if (minutes.size() == 3 && minutes.front() == u':') {
    minutes.remove_prefix(1);
  }
  return minutes.empty() || (minutes.size() == 2 && in_range(number_of_digits(minutes), 0, 59));
}

}  // namespace textio::platform
