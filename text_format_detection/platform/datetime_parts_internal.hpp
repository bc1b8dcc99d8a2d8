// SPDX-License-Identifier: MIT
//
// The parts that dates and times are made of, shared by the built-in forms and by the formats of
// pattern letters: names, AM and PM, zones, small numbers, and which dates exist.
#pragma once

#include <string_view>

namespace textio::platform {

/// Four ways for a date to exist, one bit each:
///   bit 0  a day up to the 28th, in any month
///   bit 1  a day up to the 29th, in a leap year
///   bit 2  a day up to the 30th, in any month but February
///   bit 3  a day up to the 31st, in a month of 31 days
/// Each part of a date, seen alone, leaves some of them open; the date exists when its year, month
/// and day have one in common. A part that is not given leaves all four open.
using DateWays = unsigned char;

inline constexpr DateWays no_way = 0;
inline constexpr DateWays every_way = 0b1111;

/// The ways that one part of a date leaves open; none for a number out of range, -1 included.
/// Leap years are the Gregorian ones; the year 0 is one of them.
[[nodiscard]] DateWays ways_of_year(int year) noexcept;
[[nodiscard]] DateWays ways_of_month(int month) noexcept;
[[nodiscard]] DateWays ways_of_day(int day) noexcept;

[[nodiscard]] inline bool date_exists(int const year, int const month, int const day) noexcept {
  return (ways_of_year(year) & ways_of_month(month) & ways_of_day(day)) != no_way;
}

/// The year that two digits stand for: 2000 to 2099. -1 stays -1.
[[nodiscard]] constexpr int year_of_two_digits(int const number) noexcept {
  return number < 0 ? number : 2000 + number;
}

/// True for `low` to `high`, both included.
[[nodiscard]] constexpr bool in_range(int const number, int const low, int const high) noexcept {
  return low <= number && number <= high;
}

/// The value of a text of one to nine decimal digits; -1 for any other text.
[[nodiscard]] int number_of_digits(std::u16string_view text) noexcept;

enum class NameForm {
  Abbreviation,  ///< the first three letters
  Full,          ///< "May" is both
};

/// The number of the English month that the whole text names, 1 to 12, in any letter case; else -1.
[[nodiscard]] int month_number(std::u16string_view text, NameForm form) noexcept;

/// True when the whole text names an English weekday, in any letter case.
[[nodiscard]] bool is_weekday(std::u16string_view text, NameForm form) noexcept;

/// True when the whole text is AM or PM, in any letter case.
[[nodiscard]] bool is_meridiem(std::u16string_view text) noexcept;

/// True when the whole text is a zone: "Z", "UTC" or "GMT" in any letter case, or a sign and hh,
/// hhmm or hh:mm (00 to 23, 00 to 59).
[[nodiscard]] bool is_zone(std::u16string_view text) noexcept;

}  // namespace textio::platform
