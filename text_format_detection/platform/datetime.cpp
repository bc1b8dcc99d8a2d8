// SPDX-License-Identifier: MIT
//
// The built-in forms of dates and times. In each of them a number or a name ends where another
// kind of character begins, so the text is read from left to right without ever going back.
#include "text_format_detection/platform/datetime.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime_parts_internal.hpp"
#include "text_format_detection/platform/datetime_pattern_internal.hpp"

namespace textio::platform {
namespace {

constexpr std::size_t compact_date_digits = 8;
constexpr std::size_t compact_time_digits = 6;

/// What is left of a text, and taking parts from its start. A part that is not there takes nothing.
class Cursor {
 public:
  explicit Cursor(std::u16string_view const text) noexcept : rest_(text) {}

  [[nodiscard]] std::u16string_view rest() const noexcept { return rest_; }

  [[nodiscard]] bool at_end() const noexcept { return rest_.empty(); }

  /// The number of digits that stand here, counted up to `limit`.
  [[nodiscard]] std::size_t digits_ahead(std::size_t const limit) const noexcept {
    return leading_digits(rest_, limit);
  }

  bool take(char16_t const lower) noexcept {
    bool const found = !rest_.empty() && to_lower(rest_.front()) == lower;
    rest_.remove_prefix(found ? 1 : 0);
    return found;
  }

  /// The separator that stands here, which is taken; 0 when it is none of `allowed`.
  char16_t take_any(std::u16string_view const allowed) noexcept {
    if (rest_.empty() || allowed.find(rest_.front()) == std::u16string_view::npos) {
      return 0;
    }
    char16_t const unit = rest_.front();
    rest_.remove_prefix(1);
    return unit;
  }

  bool take_spaces() noexcept {
    std::size_t const count = std::min(rest_.find_first_not_of(u' '), rest_.size());
    rest_.remove_prefix(count);
    return count > 0;
  }

  /// The value of a run of `min` to `max` digits; -1 for a shorter or longer run.
  int take_number(std::size_t const min, std::size_t const max) noexcept {
    std::size_t const count = digits_ahead(max + 1);
    if (count < min || count > max) {
      return -1;
    }
    int const number = number_of_digits(rest_.substr(0, count));
    rest_.remove_prefix(count);
    return number;
  }

  int take_month() noexcept {
    std::u16string_view const word = word_ahead();
    int const month = month_number(word, form_of(word));
    rest_.remove_prefix(month > 0 ? word.size() : 0);
    return month;
  }

  bool take_weekday() noexcept {
    std::u16string_view const word = word_ahead();
    bool const found = is_weekday(word, form_of(word));
    rest_.remove_prefix(found ? word.size() : 0);
    return found;
  }

  /// AM or PM, with or without one space in front.
  bool take_meridiem() noexcept {
    Cursor ahead = *this;
    ahead.take(u' ');
    bool const found = is_meridiem(ahead.rest_.substr(0, 2));
    if (found) {
      rest_ = ahead.rest_.substr(2);
    }
    return found;
  }

 private:
  /// The letters that stand here; cut behind the tenth, since no name has more than nine.
  [[nodiscard]] std::u16string_view word_ahead() const noexcept {
    std::size_t length = 0;
    while (length < rest_.size() && length < 10 && is_letter(rest_[length])) {
      ++length;
    }
    return rest_.substr(0, length);
  }

  /// No full name is shorter than an abbreviation, and the one of the same length is its own.
  [[nodiscard]] static NameForm form_of(std::u16string_view const word) noexcept {
    return word.size() == 3 ? NameForm::Abbreviation : NameForm::Full;
  }

  std::u16string_view rest_;
};

/// A year of four digits or, where `short_too`, of two; -1 for anything else.
int take_year(Cursor& cursor, bool const short_too) noexcept {
  if (short_too && cursor.digits_ahead(3) == 2) {
    return year_of_two_digits(cursor.take_number(2, 2));
  }
  return cursor.take_number(4, 4);
}

/// yyyy-M-d, yyyy/M/d, yyyy.M.d
bool take_year_first(Cursor& cursor) noexcept {
  int const year = cursor.take_number(4, 4);
  char16_t const separator = cursor.take_any(u"-/.");
  int const month = cursor.take_number(1, 2);
  return separator != 0 && cursor.take(separator) &&
         date_exists(year, month, cursor.take_number(1, 2));
}

/// The rest of d-MON-yyyy, d-MON-yy, d/MON/yyyy, d MON yyyy behind the first separator.
bool take_named_month(Cursor& cursor, int const day, char16_t const separator) noexcept {
  int const month = cursor.take_month();
  return separator != u'.' && cursor.take(separator) &&
         date_exists(take_year(cursor, separator == u'-'), month, day);
}

/// The rest of D-M-yyyy, D/M/yyyy, D/M/yy, d.M.yyyy behind the first separator. Only dots say that
/// the day stands first; otherwise either order will do.
bool take_numeric_month(Cursor& cursor, int const first, char16_t const separator) noexcept {
  int const second = cursor.take_number(1, 2);
  if (separator == u' ' || !cursor.take(separator)) {
    return false;
  }
  int const year = take_year(cursor, separator == u'/');
  return date_exists(year, second, first) ||
         (separator != u'.' && date_exists(year, first, second));
}

bool take_day_first(Cursor& cursor) noexcept {
  int const first = cursor.take_number(1, 2);
  char16_t const separator = cursor.take_any(u"-/. ");
  if (separator == 0 || cursor.at_end()) {
    return false;
  }
  return is_letter(cursor.rest().front()) ? take_named_month(cursor, first, separator)
                                          : take_numeric_month(cursor, first, separator);
}

/// MON d, yyyy and MON d yyyy
bool take_month_first(Cursor& cursor) noexcept {
  int const month = cursor.take_month();
  if (!cursor.take(u' ')) {
    return false;
  }
  int const day = cursor.take_number(1, 2);
  cursor.take(u',');
  return cursor.take(u' ') && date_exists(cursor.take_number(4, 4), month, day);
}

bool take_date(Cursor& cursor) noexcept {
  switch (cursor.digits_ahead(5)) {
    case 0:
      return take_month_first(cursor);
    case 4:
      return take_year_first(cursor);
    default:
      return take_day_first(cursor);
  }
}

/// The rest of the time behind hours and minutes: [:ss[.S+]]
bool take_seconds(Cursor& cursor) noexcept {
  if (!cursor.take(u':')) {
    return true;
  }
  if (!in_range(cursor.take_number(2, 2), 0, 59)) {
    return false;
  }
  if (!cursor.take(u'.')) {
    return true;
  }
  std::size_t const digits = cursor.digits_ahead(std::u16string_view::npos);
  cursor = Cursor(cursor.rest().substr(digits));
  return digits > 0;
}

/// True when all that is left is a time of day, with AM or PM and a zone or without.
bool is_time(Cursor cursor) noexcept {
  int const hour = cursor.take_number(1, 2);
  if (!cursor.take(u':') || !in_range(cursor.take_number(2, 2), 0, 59) || !take_seconds(cursor)) {
    return false;
  }
  bool const hour_fits = cursor.take_meridiem() ? in_range(hour, 1, 12) : in_range(hour, 0, 23);
  if (!hour_fits || cursor.at_end()) {
    return hour_fits;
  }
  cursor.take(u' ');
  return is_zone(cursor.rest());
}

/// yyyyMMdd"T"HHmmss and a zone directly behind it or none
bool is_compact(Cursor cursor) noexcept {
  int const date = cursor.take_number(compact_date_digits, compact_date_digits);
  if (!cursor.take(u't') || !date_exists(date / 10000, date / 100 % 100, date % 100)) {
    return false;
  }
  int const time = cursor.take_number(compact_time_digits, compact_time_digits);
  return in_range(time / 10000, 0, 23) && time >= 0 && in_range(time / 100 % 100, 0, 59) &&
         in_range(time % 100, 0, 59) && (cursor.at_end() || is_zone(cursor.rest()));
}

bool has_built_in_form(std::u16string_view const text) noexcept {
  Cursor cursor(text);
  if (cursor.digits_ahead(compact_date_digits) == compact_date_digits) {
    return is_compact(cursor);
  }
  if (cursor.digits_ahead(1) == 0 && cursor.take_weekday()) {
    cursor.take(u',');
    if (!cursor.take_spaces()) {
      return false;
    }
  }
  if (!take_date(cursor)) {
    return false;
  }
  return cursor.at_end() || ((cursor.take(u't') || cursor.take_spaces()) && is_time(cursor));
}

}  // namespace
}  // namespace textio::platform

namespace ostrel::io::text::typeconversion {

bool is_datetime(textio::Field const& field, std::u16string const& format) {
  return format.empty() ? textio::platform::has_built_in_form(field.view())
                        : textio::platform::matches_datetime_format(field.view(), format);
}

}  // namespace ostrel::io::text::typeconversion
