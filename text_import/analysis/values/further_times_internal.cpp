// SPDX-License-Identifier: MIT
//
// Each form is a change of the text, or a cut into date and time, behind which the usual forms do
// the rest.
#include "text_import/analysis/values/further_times_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_format_detection/strategies/value_grammar_internal.hpp"
#include "text_import/analysis/values/lenient_values_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

namespace grammar = textio::strategies;
using textio::platform::is_digit;
using textio::platform::is_letter;
using textio::platform::leading_digits;
using view = std::u16string_view;

constexpr std::size_t longest_text = 48;

constexpr std::array<view, 22> zone_words{
    u"Z",   u"UTC", u"GMT", u"CET", u"CEST", u"EET", u"EEST", u"WET", u"WEST", u"BST", u"IST",
    u"MSK", u"EST", u"EDT", u"CST", u"CDT",  u"MST", u"MDT",  u"PST", u"PDT",  u"JST", u"AEST"};

bool is_of(view const text, char16_t const* const pattern) {
  return ostrel::io::text::typeconversion::is_datetime(textio::Field(text), pattern);
}

bool is_clock(view const text) noexcept {
  std::size_t const groups = grammar::count_duration_groups<LenientValues>(text);
  return groups == 2 || groups == 3;
}

/// A time of day: hours below 24 of one or two digits, minutes, seconds, decimals of them.
bool is_time(view const text) noexcept {
  std::size_t const colon = leading_digits(text);
  auto const is_below = [text](std::size_t const pos, std::size_t const digits, int const limit) {
    int number = 0;
    for (char16_t const c : text.substr(pos, digits)) {
      number = number * 10 + (c - u'0');
    }
    return leading_digits(text.substr(pos)) == digits && number < limit;
  };
  if (colon == 0 || colon > 2 || !is_clock(text) || !is_below(0, colon, 24)) {
    return false;
  }
  std::size_t const seconds = colon + 4;
  return is_below(colon + 1, 2, 60) &&
         (text.size() < seconds || (text.size() > seconds && is_below(seconds, 2, 61)));
}

/// "7:05 pm", "07:05:30AM"
bool is_clock_of_half_day(view text) noexcept {
  view const end = text.size() < 2 ? view{} : text.substr(text.size() - 2);
  if (!textio::platform::equals_ignoring_case(end, u"am") &&
      !textio::platform::equals_ignoring_case(end, u"pm")) {
    return false;
  }
  text.remove_suffix(2);
  text = trimmed(text);
  return is_time(text);
}

/// Without a zone's word at the end.
view without_zone_word(view const text) noexcept {
  std::size_t const blank = text.rfind(u' ');
  bool const has_word = blank != view::npos &&
                        std::ranges::find(zone_words, text.substr(blank + 1)) != zone_words.end();
  return has_word ? trimmed(text.substr(0, blank)) : text;
}

/// Without the decimals of seconds behind a comma.
view without_decimals(view const text) noexcept {
  std::size_t const comma = text.rfind(u',');
  std::size_t const colon = text.rfind(u':');
  if (comma == view::npos || colon == view::npos || comma != colon + 3) {
    return text;
  }
  view const decimals = text.substr(comma + 1);
  bool const are_digits = !decimals.empty() && leading_digits(decimals) == decimals.size();
  return are_digits ? text.substr(0, comma) : text;
}

/// "5. 1. 2024" and "5.1.2024." without the blanks and the point at the end.
std::u16string without_blanks(view const text) {
  std::u16string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bool const is_behind_point = text[i] == u' ' && i > 0 && text[i - 1] == u'.';
    plain.append(is_behind_point ? 0 : 1, text[i]);
  }
  if (plain.ends_with(u'.')) {
    plain.pop_back();
  }
  return plain;
}

bool is_date_in_characters(view const text) {
  constexpr view year_sign = u"\u5E74\uB144";
  return text.find_first_of(year_sign) == 4 &&
         (is_of(text, u"yyyy\u5E74M\u6708d\u65E5") || is_of(text, u"yyyy\uB144 M\uC6D4 d\uC77C") ||
          is_of(text, u"yyyy\uB144M\uC6D4d\uC77C"));
}

/// Two digits, a mark, two digits, the same mark, two digits: the order stays open but with points.
bool is_short_date(view const text) {
  if (text.size() != 8 || text[2] != text[5]) {
    return false;
  }
  return (text[2] == u'.' && is_of(text, u"dd.MM.yy")) ||
         (text[2] == u'-' &&
          (is_of(text, u"dd-MM-yy") || is_of(text, u"MM-dd-yy") || is_of(text, u"yy-MM-dd")));
}

/// A date that is none of the usual forms.
bool is_further_date(view const text) {
  std::size_t const digits = leading_digits(text);
  if (text.size() < 8 || digits == 0 || digits > 4) {
    return false;
  }
  bool const has_points = text[digits] == u'.' && (text[digits + 1] == u' ' || text.back() == u'.');
  return is_short_date(text) || (digits == 4 && is_date_in_characters(text)) ||
         (has_points && is_of(without_blanks(text), u""));
}

bool is_date(view const text) {
  return is_of(text, u"") || is_further_date(text);
}

/// The date and the time of day behind it, with a blank, a comma or a T between.
bool is_date_and_clock(view const text) {
  std::size_t const cut = text.find_first_of(u" ,T_", std::min<std::size_t>(text.size(), 6));
  std::size_t const colon = text.find(u':');
  if (cut == view::npos || colon == view::npos || colon < cut) {
    return false;
  }
  std::size_t const start = text.rfind(u' ', colon) + 1;  // behind blanks within the date
  std::size_t const behind = std::max(cut + 1, start);
  view const date = trimmed(text.substr(0, behind - 1), u" ,");
  view const clock = trimmed(text.substr(behind));
  return is_date(date) && (is_time(clock) || is_clock_of_half_day(clock));
}

/// "05/Jan/2024:10:30:00 +0100"
bool is_stamp_of_server(view const text) {
  return text.size() > 12 && text[2] == u'/' && text[11] == u':' &&
         (is_of(text, u"dd/MMM/yyyy:HH:mm:ss Z") || is_of(text, u"dd/MMM/yyyy:HH:mm:ss"));
}

/// "Fri Jan  5 10:30:00 2024", and what the usual forms begin with a weekday but for a zone's word.
bool is_stamp_of_weekday(view const text) {
  bool const has_blanks = text.size() >= 20 && (text[3] == u' ' || text[3] == u',') &&
                          (text[6] == u' ' || text[7] == u' ');
  if (!has_blanks || text.find(u':') == view::npos) {
    return false;
  }
  view const plain = without_zone_word(text);
  return (is_of(text, u"EEE MMM d HH:mm:ss yyyy") || is_of(text, u"EEE MMM  d HH:mm:ss yyyy") ||
          (plain.size() < text.size() && is_of(plain, u"")));
}

/// "1-02:03:04", "2 days 03:04:05", "1 day, 2:03:04"
bool is_days_and_clock(view text) noexcept {
  text.remove_prefix(text.starts_with(u'-') ? 1 : 0);
  std::size_t const digits = leading_digits(text);
  if (digits == 0) {
    return false;
  }
  text.remove_prefix(digits);
  if (text.starts_with(u'-')) {
    return grammar::count_duration_groups<LenientValues>(text.substr(1)) == 3;
  }
  if (!text.starts_with(u" day")) {
    return false;
  }
  text.remove_prefix(4);
  text.remove_prefix(text.starts_with(u's') ? 1 : 0);
  return text.empty() || is_clock(trimmed(text, u" ,"));
}

/// "P1DT2H30M", "PT0.5S": groups of a number and a letter.
bool is_duration_of_letters(view text) noexcept {
  text.remove_prefix(1);
  bool has_group = false;
  while (!text.empty()) {
    text.remove_prefix(text.front() == u'T' ? 1 : 0);
    std::size_t const length = std::min(text.find_first_not_of(u"0123456789.,"), text.size());
    if (length == 0 || length == text.size() || view(u"YMWDHS").find(text[length]) == view::npos) {
      return false;
    }
    has_group = true;
    text.remove_prefix(length + 1);
  }
  return has_group;
}

ValueShape shape_behind_letter(view const text) {
  if (text.front() == u'P' && is_duration_of_letters(text)) {
    return ValueShape::Duration;
  }
  return is_stamp_of_weekday(text) ? ValueShape::DateTime : ValueShape::Empty;
}

ValueShape shape_without_colon(view const text) {
  if (is_further_date(text)) {
    return ValueShape::Date;
  }
  return is_days_and_clock(text) ? ValueShape::Duration : ValueShape::Empty;
}

ValueShape shape_with_colon(view const text) {
  view const plain = without_decimals(without_zone_word(text));
  bool const is_shorter = plain.size() < text.size();
  if (is_clock_of_half_day(text) || is_days_and_clock(plain) || (is_shorter && is_clock(plain))) {
    return ValueShape::Duration;
  }
  bool const is_stamp =
      (is_shorter && is_of(plain, u"")) || is_date_and_clock(plain) || is_stamp_of_server(plain);
  return is_stamp ? ValueShape::DateTime : ValueShape::Empty;
}

}  // namespace

ValueShape shape_of_further_time(view const text) {
  if (text.size() > longest_text || text.size() < 4) {
    return ValueShape::Empty;
  }
  if (is_letter(text.front())) {
    return shape_behind_letter(text);
  }
  if (!is_digit(text.front()) && text.front() != u'-') {
    return ValueShape::Empty;
  }
  return text.find(u':') == view::npos ? shape_without_colon(text) : shape_with_colon(text);
}

bool is_time_of_day(view const text) noexcept {
  bool const has_two_digits = leading_digits(text) == 2;
  return is_clock_of_half_day(text) || (has_two_digits && is_time(without_decimals(text)));
}

view zone_of(view const date_time) noexcept {
  std::size_t const colon = date_time.find(u':');
  if (colon == view::npos) {
    return date_time.ends_with(u'Z') ? date_time.substr(date_time.size() - 1) : view{};
  }
  std::size_t const end = date_time.find_first_not_of(u"0123456789:., ", colon);
  if (end == view::npos) {
    return {};
  }
  view zone = date_time.substr(end);
  bool const is_half_day = zone.size() >= 2 && (zone[1] == u'M' || zone[1] == u'm');
  zone = is_half_day ? trimmed(zone.substr(2)) : zone;
  return zone.substr(0, zone.find(u' '));
}

}  // namespace textimport::analysis
