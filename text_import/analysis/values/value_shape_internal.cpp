// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/value_shape_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "text_format_detection/platform/datetime.hpp"
#include "text_import/analysis/values/number_scan_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr bool is_digit(char16_t const c) noexcept {
  return c >= u'0' && c <= u'9';
}

constexpr char16_t lower(char16_t const c) noexcept {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

template <std::size_t n>
bool is_one_of(view const text, std::array<view, n> const& words) noexcept {
  return std::ranges::any_of(
      words, [&](view const word) { return std::ranges::equal(text, word, {}, lower, lower); });
}

bool is_missing_word(view const text) noexcept {
  static constexpr std::array<view, 14> words{u"na",  u"n/a",  u"null", u"nil",    u"none",
                                              u"nan", u"#n/a", u"\\n",  u"-",      u"--",
                                              u"?",   u".",    u"*",    u"missing"};
  return text.size() <= 7 && is_one_of(text, words);
}

bool is_infinity(view const text) noexcept {
  static constexpr std::array<view, 6> words{u"inf",       u"infinity", u"+inf",
                                             u"+infinity", u"-inf",     u"-infinity"};
  return text.size() <= 9 && is_one_of(text, words);
}

bool is_boolean_word(view const text) noexcept {
  static constexpr std::array<view, 4> words{u"true", u"false", u"yes", u"no"};
  return text.size() <= 5 && is_one_of(text, words);
}

bool is_prefixed_digits(view const text, char16_t const letter, view const digits) noexcept {
  return text.size() > 2 && text[0] == u'0' && lower(text[1]) == letter &&
         text.find_first_not_of(digits, 2) == view::npos;
}

/// Two or more groups of digits joined by ":", a fraction behind the last.
bool is_duration(view const text) noexcept {
  std::size_t colons = 0;
  std::size_t digits = 0;
  std::size_t pos = !text.empty() && (text[0] == u'-' || text[0] == u'+') ? 1U : 0U;
  for (; pos < text.size() && (is_digit(text[pos]) || text[pos] == u':'); ++pos) {
    if (is_digit(text[pos])) {
      ++digits;
    } else if (digits == 0 || digits > 3) {
      return false;
    } else {
      ++colons;
      digits = 0;
    }
  }
  if (colons == 0 || colons > 3 || digits == 0) {
    return false;
  }
  return pos == text.size() ||
         (text[pos] == u'.' && text.find_first_not_of(u"0123456789", pos + 1) == view::npos);
}

bool may_be_date(view const text) noexcept {
  return text.size() >= 6 && text.size() <= 48 && std::ranges::any_of(text, is_digit) &&
         text.find_first_of(u"-/. :T") != view::npos;
}

/// A real and an imaginary part, or the latter alone.
bool is_complex(view text) noexcept {
  if (text.size() < 2 || (text.back() != u'i' && text.back() != u'j')) {
    return false;
  }
  text.remove_suffix(1);
  std::size_t const sign = text.find_last_of(u"+-");
  if (sign == view::npos || sign == 0) {
    return scan_number(text).has_value();
  }
  return scan_number(text.substr(0, sign)) && scan_number(text.substr(sign));
}

/// What stands in a text, met from left to right.
class TextScan {
 public:
  TextScan(view const text, char16_t const quote) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
      char16_t const c = text[i];
      if (is_letter(c)) {
        is_numeric_ = is_numeric_ && (lower(c) == u'd' || lower(c) == u'e');
        only_groups_ = false;
      } else if (!is_digit(c)) {
        take_sign(c, text.substr(i + 1));
      }
      num_quotes_ += c == quote ? 1U : 0U;
    }
  }

  [[nodiscard]] bool has_blank() const noexcept { return has_blank_; }

  [[nodiscard]] bool is_address() const noexcept { return has_scheme_ && !has_blank_; }

  /// What a cut at the wrong place leaves.
  [[nodiscard]] bool is_broken() const noexcept {
    return has_gap_ || has_foreign_delimiter_ || has_odd_brackets_ || depth_ != 0 ||
           is_run_together() || num_quotes_ % 2 != 0;
  }

 private:
  static constexpr bool is_letter(char16_t const c) noexcept {
    return lower(c) >= u'a' && lower(c) <= u'z';
  }

  void take_sign(char16_t const c, view const rest) noexcept {
    bool const before_blank = rest.starts_with(u' ');
    has_blank_ = has_blank_ || c == u' ';
    has_gap_ = has_gap_ || (c == u' ' && rest.starts_with(u"  "));
    has_scheme_ = has_scheme_ || (c == u':' && rest.starts_with(u"//"));
    // Characters that usually stand between values are never alone inside one. A comma in front of
    // a blank belongs to a sentence, and so does a semicolon there or at the end.
    has_foreign_delimiter_ =
        has_foreign_delimiter_ || c == u'\t' || c == u'|' || (c < 32 && c != u'\n' && c != u'\r') ||
        (c == u';' && !rest.empty() && !before_blank) || (c == u',' && !before_blank);
    take_bracket(c);
    num_points_ += c == u'.' ? 1U : 0U;
    only_groups_ = only_groups_ && c == u'.';
    is_numeric_ = is_numeric_ && (c == u'.' || c == u'+' || c == u'-');
  }

  void take_bracket(char16_t const c) noexcept {
    if (c == u'(' || c == u'[' || c == u'{') {
      ++depth_;
    } else if (c == u')' || c == u']' || c == u'}') {
      --depth_;
      has_odd_brackets_ = has_odd_brackets_ || depth_ < 0;
    }
  }

  /// Numbers such as "0.0528-1.5E-3" or "12.50.3": the characters of numbers, but no number, and no
  /// row of plain groups such as an address or a version.
  [[nodiscard]] bool is_run_together() const noexcept {
    return is_numeric_ && num_points_ >= 2 && !(only_groups_ && num_points_ <= 3);
  }

  bool has_blank_ = false;
  bool has_gap_ = false;  // three blanks in a row
  bool has_scheme_ = false;
  bool has_foreign_delimiter_ = false;
  bool has_odd_brackets_ = false;  // one closes before it opens
  bool is_numeric_ = true;
  bool only_groups_ = true;
  int depth_ = 0;
  std::size_t num_points_ = 0;
  std::size_t num_quotes_ = 0;
};

ValueShape shape_of_text(view const text, char16_t const quote) noexcept {
  TextScan const scan(text, quote);
  if (scan.is_address()) {
    return ValueShape::Word;
  }
  if (scan.is_broken()) {
    return ValueShape::Broken;
  }
  return scan.has_blank() ? ValueShape::Phrase : ValueShape::Word;
}

ValueLook look_inside(view const text, char16_t const quote) {
  ValueLook look;
  if (text.empty()) {
    return look;
  }
  if (auto const number = scan_number(text)) {
    look.shape = number->is_integer ? ValueShape::Integer : ValueShape::Real;
    look.marks = number->marks;
    look.leading_zeros = number->is_integer && number->leading_zeros;
  } else if (is_missing_word(text)) {
    look.shape = ValueShape::Missing;
  } else if (is_infinity(text)) {
    look.shape = ValueShape::Real;
  } else if (is_boolean_word(text)) {
    look.shape = ValueShape::Boolean;
  } else if (is_duration(text)) {
    look.shape = ValueShape::Duration;
  } else if (is_prefixed_digits(text, u'x', u"0123456789abcdefABCDEF")) {
    look.shape = ValueShape::Hexadecimal;
  } else if (is_prefixed_digits(text, u'b', u"01")) {
    look.shape = ValueShape::Binary;
  } else if (is_complex(text)) {
    look.shape = ValueShape::ComplexNumber;
  } else if (may_be_date(text) &&
             ostrel::io::text::typeconversion::is_datetime(textio::Field(text), {})) {
    look.shape = text.find(u':') == view::npos ? ValueShape::Date : ValueShape::DateTime;
  } else {
    look.shape = shape_of_text(text, quote);
  }
  return look;
}

}  // namespace

view unquoted(view const field, char16_t const quote) noexcept {
  view const text = trimmed(field);
  bool const is_quoted =
      quote != 0 && text.size() >= 2 && text.front() == quote && text.back() == quote;
  return is_quoted ? trimmed(text.substr(1, text.size() - 2)) : text;
}

ValueLook look_at(view const field, char16_t const quote) {
  view const text = trimmed(field);
  view const inside = unquoted(text, quote);
  bool const is_quoted = inside.data() != text.data() || (inside.empty() && !text.empty());
  ValueLook look = look_inside(inside, quote);
  look.quoted = is_quoted;
  bool const opens = quote != 0 && !text.empty() && text.front() == quote;
  if (opens && !is_quoted) {
    look.shape = ValueShape::Broken;  // opened, and closed somewhere inside
  }
  if (is_quoted && look.shape == ValueShape::Broken) {
    look.shape = ValueShape::Phrase;  // that is what the quotes are for
  }
  return look;
}

}  // namespace textimport::analysis
