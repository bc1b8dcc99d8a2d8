// SPDX-License-Identifier: MIT
//
// A date is a row of tokens; what a number in it is follows from its place among the numbers.
#include "text_import/analysis/values/date_evidence_internal.hpp"

#include <algorithm>
#include <array>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_import/analysis/values/further_times_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;
using textio::platform::is_letter;
using view = std::u16string_view;

constexpr std::size_t abbreviation = 3;
constexpr std::size_t npos = view::npos;

struct NumberRun {
  std::size_t digits = 0;
  unsigned value = 0;
};

/// The first runs of digits.
std::array<NumberRun, 3> first_numbers(view const text) noexcept {
  std::array<NumberRun, 3> runs{};
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

/// The part in front of the time.
view day_of(view const date) noexcept {
  std::size_t const colon = date.find(u':');
  if (colon == view::npos) {
    return date.substr(0, date.find(u'T'));
  }
  std::size_t const cut = date.substr(0, colon).find_last_of(u" T,_");
  return date.substr(0, cut);
}

bool is_zone_word(view const text) noexcept {
  return text == u"Z" || text == u"UTC" || text == u"GMT";
}

}  // namespace

void DateEvidence::add(view const date) {
  if (is_uniform_) {
    add_tokens(date);
  }
  add_zone(date);
  view const day = day_of(date);
  bool const has_name = std::ranges::any_of(day, is_letter);
  if (!has_name && !day.empty()) {
    add_order(day);
  }
  if (first_.empty()) {
    first_ = date;
  }
  last_ = date;
}

void DateEvidence::add_order(view const day) {
  constexpr unsigned last_month = 12;
  constexpr unsigned last_day = 31;
  is_numeric_ = true;
  auto const runs = first_numbers(day);
  bool const has_points = day.find(u'.') != view::npos;  // 5.1.2024 is in January
  if (runs[0].digits >= 4 || runs[0].value > last_day) {
    year_is_first_ = true;
  } else if (runs[0].value > last_month || has_points) {
    day_is_first_ = true;
  } else if (runs[1].value > last_month) {
    month_is_first_ = true;
  }
}

void DateEvidence::add_zone(view const date) {
  view const zone = zone_of(date);
  if (first_.empty()) {
    zone_ = zone;
  } else if (zone_ != zone) {
    zone_.clear();
  }
}

/// The run of digits or letters at the start of a text, or one other character.
DateEvidence::Token DateEvidence::first_token(view const text) {
  char16_t const first = text.front();
  if (!is_digit(first) && !is_letter(first)) {
    return {Kind::Other, 1, 1, std::u16string(1, first)};
  }
  bool const is_number = is_digit(first);
  auto const end = std::ranges::find_if(
      text, [&](char16_t const c) { return is_number ? !is_digit(c) : !is_letter(c); });
  auto const length = static_cast<std::size_t>(end - text.begin());
  return {is_number ? Kind::Digits : Kind::Letters, length, length, {}};
}

/// The first date sets the tokens, the others are held against them.
void DateEvidence::add_tokens(view date) {
  if (first_.empty()) {
    for (; !date.empty(); date.remove_prefix(tokens_.back().longest)) {
      tokens_.push_back(first_token(date));
      tokens_.back().text = date.substr(0, tokens_.back().longest);
    }
    return;
  }
  for (Token& token : tokens_) {
    Token const found = date.empty() ? Token() : first_token(date);
    is_uniform_ = is_uniform_ && !date.empty() && found.kind == token.kind &&
                  (found.kind != Kind::Other || found.text == token.text);
    if (!is_uniform_) {
      return;
    }
    token.shortest = std::min(token.shortest, found.shortest);
    token.longest = std::max(token.longest, found.longest);
    date.remove_prefix(found.longest);
  }
  is_uniform_ = date.empty();
}

DateOrder DateEvidence::order() const noexcept {
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

/// What the numbers are, one letter each: of the date, then H m s S.
std::u16string DateEvidence::roles() const {
  constexpr view time = u"HmsS";
  auto const is_half_day = [](Token const& token) {
    return token.text == u"AM" || token.text == u"PM" || token.text == u"am" || token.text == u"pm";
  };
  std::u16string clock(time);
  if (std::ranges::any_of(tokens_, is_half_day)) {
    clock.front() = u'h';
  }
  switch (order()) {
    case DateOrder::YearFirst:
      return u"yMd" + clock;
    case DateOrder::DayFirst:
      return u"dMy" + clock;
    case DateOrder::MonthFirst:
      return u"Mdy" + clock;
    case DateOrder::Ambiguous:
    case DateOrder::None:
      break;
  }
  bool const has_weekday =
      tokens_.size() > 2 && tokens_[0].kind == Kind::Letters && tokens_[2].kind == Kind::Letters;
  return has_weekday ? u"dHmsy" : u"dy" + clock;
}

/// A name, a T, a zone, a half of the day; empty for another word.
std::u16string DateEvidence::pattern_of_word(Token const& token) const {
  if (token.text == u"T" || token.text == u"t") {
    return u"'T'";
  }
  if (token.longest == 2) {
    return u"a";
  }
  if (is_zone_word(token.text)) {
    return token.longest == 1 ? u"XXX" : u"z";
  }
  auto const is_name = [](Token const& word) {
    return word.kind == Kind::Letters && word.shortest >= abbreviation && !is_zone_word(word.text);
  };
  bool const is_weekday =
      &token == tokens_.data() && (is_numeric_ || std::ranges::count_if(tokens_, is_name) > 1);
  std::u16string const name = is_weekday ? u"EEE" : u"MMM";
  return token.longest == abbreviation ? name : name + name.front();
}

/// As many letters as digits; one of them where numbers of one digit have no zero in front.
std::u16string DateEvidence::pattern_of_number(Token const& token, char16_t const role) {
  bool const is_whole = role == u'y' || role == u'S';
  bool const is_year = role != u'y' || token.longest == 2 || token.longest == 4;
  if ((is_whole && token.shortest != token.longest) || !is_year) {
    return {};
  }
  std::size_t const letters = is_whole ? token.shortest : std::min<std::size_t>(token.shortest, 2);
  std::u16string pattern(letters, role);
  return pattern;
}

/// Empty when the tokens have no pattern.
std::u16string DateEvidence::pattern() const {
  std::u16string const roles = this->roles();
  std::u16string pattern;
  std::size_t number = 0;
  for (Token const& token : tokens_) {
    if (token.kind == Kind::Other) {
      bool const is_zone = (token.text == u"+" || token.text == u"-") && pattern.find(u'm') < npos;
      if (is_zone) {
        return pattern + u"XXX";
      }
      if (token.text == u"'") {
        return {};
      }
      pattern += token.text;
      continue;
    }
    bool const is_word = token.kind == Kind::Letters;
    if (!is_word && number == roles.size()) {
      return {};
    }
    std::u16string const part =
        is_word ? pattern_of_word(token) : pattern_of_number(token, roles[number++]);
    if (part.empty()) {
      return {};
    }
    pattern += part;
  }
  return pattern;
}

DateFormat DateEvidence::format() const {
  DateFormat format{order(), {}, zone_};
  if (is_uniform_ && format.order != DateOrder::Ambiguous) {
    format.pattern = pattern();
  }
  auto const fits = [&](std::u16string const& date) {
    return ostrel::io::text::typeconversion::is_datetime(textio::Field(date), format.pattern);
  };
  if (!format.pattern.empty() && !(fits(first_) && fits(last_))) {
    format.pattern.clear();
  }
  return format;
}

}  // namespace textimport::analysis
