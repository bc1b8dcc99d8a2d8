// SPDX-License-Identifier: MIT
//
// The order of the questions matters for two reasons: most values of real files leave at the first
// ones, and some texts would pass several tests.
#include "text_import/analysis/values/value_grammar_internal.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_format_detection/strategies/value_grammar_internal.hpp"
#include "text_import/analysis/values/column_words_internal.hpp"
#include "text_import/analysis/values/further_times_internal.hpp"
#include "text_import/analysis/values/lenient_values_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/text_shape_internal.hpp"
#include "text_import/analysis/values/value_words_internal.hpp"

namespace textimport::analysis {

namespace {

namespace grammar = textio::strategies;
using view = std::u16string_view;

NumberRules number_rules(ValueRequest const& request) {
  NumberRules rules;
  auto const leave = [](std::u16string& marks, char16_t const mark) {
    marks.assign(mark != 0 ? 1 : 0, mark);
  };
  if (request.thousands_mark) {
    std::erase(rules.decimal_marks, *request.thousands_mark);
    leave(rules.thousands_marks, *request.thousands_mark);
  }
  if (request.decimal_mark) {
    std::erase(rules.thousands_marks, *request.decimal_mark);
    leave(rules.decimal_marks, *request.decimal_mark);
  }
  rules.mark_is_known = request.decimal_mark.has_value();
  if (!request.exponent_characters.empty()) {
    rules.exponent_characters = request.exponent_characters;
  }
  rules.max_decimals = request.max_decimals.value_or(rules.max_decimals);
  return rules;
}

/// The pattern's letters outside of quotes: whether it has any of a set.
bool asks_for(view const pattern, view const letters) noexcept {
  bool in_quotes = false;
  return std::ranges::any_of(pattern, [&](char16_t const c) {
    in_quotes = in_quotes != (c == u'\'');
    return !in_quotes && letters.find(c) != view::npos;
  });
}

/// A time of day alone is a duration like any other.
ValueShape shape_of_pattern(view const pattern) noexcept {
  if (!asks_for(pattern, u"HhmsSa")) {
    return ValueShape::Date;
  }
  return asks_for(pattern, u"yuMdE") ? ValueShape::DateTime : ValueShape::Duration;
}

bool is_datetime(view const text, std::u16string const& pattern) {
  return ostrel::io::text::typeconversion::is_datetime(textio::Field(text), pattern);
}

bool may_be_date(view const text) noexcept {
  return text.size() >= 6 && text.size() <= 48 &&
         std::ranges::any_of(text, textio::platform::is_digit) &&
         text.find_first_of(u"-/. :T\u5E74\uB144") != view::npos;
}

/// Where the last number of the text begins that has a sign; 0 when none but the first may have
/// one.
std::size_t last_signed(view const text, view const exponent_characters) noexcept {
  auto const sign_before = [text](std::size_t const end) {
    std::size_t const sign = text.substr(0, end).find_last_of(u"+-");
    return sign == view::npos ? 0 : sign;
  };
  std::size_t const sign = sign_before(text.size());
  bool const is_of_exponent = sign > 0 && exponent_characters.find(text[sign - 1]) != view::npos;
  return is_of_exponent ? sign_before(sign) : sign;
}

/// A real and an imaginary part, or the latter alone.
bool is_complex(view text, NumberRules const& rules) noexcept {
  if (text.size() < 2 || !grammar::is_imaginary_unit(text.substr(text.size() - 1))) {
    return false;
  }
  text.remove_suffix(1);
  std::size_t const imaginary = last_signed(text, rules.exponent_characters);
  return scan_number(text.substr(imaginary), rules) &&
         (imaginary == 0 || scan_number(text.substr(0, imaginary), rules));
}

/// Empty for what is no date in any of the usual forms.
ValueShape shape_of_usual_date(view const text) {
  if (!may_be_date(text)) {
    return text.front() == u'P' ? shape_of_further_time(text) : ValueShape::Empty;
  }
  auto const is_date = [](view const part) { return is_datetime(part, {}); };
  bool const has_time = text.find(u':') != view::npos;
  if (is_date(text) || (has_time && grammar::is_time_beside_date<LenientValues>(text, is_date))) {
    return has_time ? ValueShape::DateTime : ValueShape::Date;
  }
  return shape_of_further_time(text);
}

/// How many code units at the end are a remark behind a number: "12.3 p", "45 *", "7*"; 0 for none.
std::size_t length_of_flag(view const text) noexcept {
  bool const is_star = text.ends_with(u'*');
  std::size_t const last = text.find_last_not_of(is_star ? view(u"*") : flag_letters);
  std::size_t const length = text.size() - (last + 1);
  if (last == view::npos || length == 0 || length > longest_flag) {
    return 0;
  }
  bool const has_blank = text[last] == u' ';
  return has_blank || is_star ? length + (has_blank ? 1 : 0) : 0;
}

/// A quick look.
bool may_be_flagged(view const text) noexcept {
  bool const may_start =
      textio::platform::is_digit(text.front()) || text.front() == u':' || text.front() == u'-';
  return may_start && text.size() >= 2 &&
         (text.back() == u'*' || flag_letters.find(text.back()) != view::npos);
}

}  // namespace

ValueGrammar::ValueGrammar(char16_t const quote, ValueRequest const& request,
                           std::u16string ordinary)
    : quote_(quote),
      marks_are_given_(request.decimal_mark || request.thousands_mark),
      ordinary_(std::move(ordinary)),
      numbers_(number_rules(request)),
      missing_words_(request.missing_words),
      date_pattern_(request.date_pattern),
      shape_of_pattern_(shape_of_pattern(request.date_pattern)),
      leading_character_(request.leading_character),
      embedded_numbers_(request.embedded_numbers),
      keeps_blanks_(request.keeps_blanks) {}

/// Empty for what the pattern does not take.
ValueShape ValueGrammar::shape_by_pattern(view const text) const {
  auto const is_date = [this](view const part) { return is_datetime(part, date_pattern_); };
  if (is_date(text)) {
    return shape_of_pattern_;
  }
  bool const has_time = shape_of_pattern_ == ValueShape::Date &&
                        grammar::is_time_beside_date<LenientValues>(text, is_date);
  return has_time ? ValueShape::DateTime : ValueShape::Empty;
}

/// Empty for what is no such word.
ValueShape ValueGrammar::shape_of_word(view const text) const {
  bool const is_nan = grammar::is_nan(text);
  if (!missing_words_ && (is_nan || is_usual_missing_word(text))) {
    return ValueShape::Missing;
  }
  if (is_nan || grammar::is_infinity<LenientValues>(text)) {
    return ValueShape::Real;
  }
  return is_boolean_word(text) ? ValueShape::Boolean : ValueShape::Empty;
}

ValueShape ValueGrammar::shape_of_no_number(view const text) const {
  if (may_be_word(text)) {
    if (ValueShape const word = shape_of_word(text); word != ValueShape::Empty) {
      return word;
    }
  }
  if (!textio::platform::is_letter(text.front())) {
    if (grammar::count_duration_groups<LenientValues>(text) > 0) {
      return ValueShape::Duration;
    }
    if (grammar::is_hexadecimal<LenientValues>(text)) {
      return ValueShape::Hexadecimal;
    }
    if (grammar::is_binary<LenientValues>(text)) {
      return ValueShape::Binary;
    }
  }
  if (is_complex(text, numbers_)) {
    return ValueShape::ComplexNumber;
  }
  if (date_pattern_.empty()) {
    if (ValueShape const date = shape_of_usual_date(text); date != ValueShape::Empty) {
      return date;
    }
  }
  if (embedded_numbers_ && std::ranges::any_of(text, textio::platform::is_digit)) {
    return ValueShape::Real;
  }
  return ValueShape::Word;
}

ValueLook ValueGrammar::look_inside(view const text) const {
  ValueLook look;
  if (text.empty()) {
    return look;
  }
  if (missing_words_ && std::ranges::find(*missing_words_, text) != missing_words_->end()) {
    look.shape = ValueShape::Missing;
    return look;
  }
  if (!date_pattern_.empty()) {
    look.shape = shape_by_pattern(text);
    if (look.shape != ValueShape::Empty) {
      return look;
    }
  }
  if (auto const number = scan_number(text, numbers_)) {
    look.shape = number->is_integer ? ValueShape::Integer : ValueShape::Real;
    look.marks = number->marks;
    look.dress = number->dress;
    look.leading_zeros = number->is_integer && number->leading_zeros;
  } else {
    look.shape = shape_of_no_number(text);
  }
  return look;
}

view ValueGrammar::value_of(view const field) const noexcept {
  view text = stripped(field);
  if (stands_in(text, quote_)) {
    text = stripped(text.substr(1, text.size() - 2));
  }
  if (leading_character_ != 0 && text.starts_with(leading_character_)) {
    text = stripped(text.substr(1));
  }
  return text;
}

ValueLook ValueGrammar::look_at_type(view const field) const {
  view const text = stripped(field);
  view const value = value_of(text);
  ValueLook look = look_inside(value);
  if (look.shape == ValueShape::Word && may_be_flagged(value)) {
    look = look_behind_flag(value);
  }
  look.quoted = stands_in(text, quote_);
  return look;
}

/// A number with a remark behind it, as statistics offices write them; or a colon with one, which
/// is no value.
ValueLook ValueGrammar::look_behind_flag(view const text) const {
  std::size_t const length = length_of_flag(text);
  ValueLook look;
  if (length == 0) {
    look.shape = ValueShape::Word;
    return look;
  }
  view const number = trimmed(text.substr(0, text.size() - length));
  if (number == u":") {
    look.shape = ValueShape::Missing;
    return look;
  }
  look = look_inside(number);
  look.dress.flag = static_cast<std::uint8_t>(length);
  if (look.shape != ValueShape::Integer && look.shape != ValueShape::Real) {
    look = {};
    look.shape = ValueShape::Word;
  }
  return look;
}

ValueLook ValueGrammar::look_at(view const field) const {
  view const text = stripped(field);
  view const value = value_of(text);
  ValueLook look = look_inside(value);
  look.quoted = stands_in(text, quote_);
  if (look.shape == ValueShape::Word) {
    look.shape = shape_of_text(value, quote_, ordinary_);
  }
  bool const opens = quote_ != 0 && text.starts_with(quote_);
  if (opens && !look.quoted) {
    look.shape = ValueShape::Broken;  // opened, and closed somewhere inside
  }
  if (look.quoted && look.shape == ValueShape::Broken) {
    look.shape = ValueShape::Phrase;  // that is what the quotes are for
  }
  return look;
}

}  // namespace textimport::analysis
