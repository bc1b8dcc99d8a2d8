// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/number_scan_internal.hpp"

#include <algorithm>
#include <array>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/strategies/value_grammar_internal.hpp"
#include "text_import/analysis/values/currency_signs_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;
using view = std::u16string_view;

bool is_one_of(char16_t const c, view const set) noexcept {
  return set.find(c) != view::npos;
}

/// The letters at the start of a text up to a blank, a sign or a parenthesis, with a point or a
/// dollar sign that stands between; 0 when they are too many for a currency or digits follow.
std::size_t length_of_currency_word(view const text) noexcept {
  std::size_t length = 0;
  while (length < text.size() && length <= longest_currency &&
         (textio::platform::is_letter(text[length]) || text[length] == 0x142 ||
          text[length] == 0x10D)) {
    ++length;
  }
  bool const has_end = length > 0 && length < text.size() && is_one_of(text[length], u".$");
  length += has_end ? 1 : 0;
  bool const stands_apart = length < text.size() && is_one_of(text[length], u" \u00A0\u202F-(");
  bool const has_dollar = has_end && text[length - 1] == u'$';
  return length <= longest_currency && (stands_apart || has_dollar) ? length : 0;
}

/// Takes a number apart from left to right.
class NumberScan {
 public:
  NumberScan(view const text, NumberRules const& rules) noexcept : rest_(text), rules_(rules) {}

  std::optional<ScannedNumber> run() noexcept {
    if (!is_digit(rest_.front())) {
      take_front();
    }
    bool const has_digits = take_groups();
    if (!has_digits || !read_marks()) {
      return std::nullopt;
    }
    take_exponent();
    if ((!rest_.empty() && !(may_be_back() && take_back())) || is_open_) {
      return std::nullopt;
    }
    return number_;
  }

 private:
  static constexpr std::size_t max_groups = 12;
  static constexpr view signs = u"+-\u2212";
  static constexpr view blanks = u" \u00A0\u202F";

  bool drop_one_of(view const set) noexcept {
    bool const drops = !rest_.empty() && is_one_of(rest_.front(), set);
    rest_.remove_prefix(drops ? 1 : 0);
    return drops;
  }

  void drop_blanks() noexcept {
    while (drop_one_of(blanks)) {
    }
  }

  /// A parenthesis or a sign, and a currency, each once and in any order.
  void take_front() noexcept {
    while (!rest_.empty() && !is_digit(rest_.front()) &&
           ((!has_sign_ && take_sign()) ||
            (may_start_currency(rest_.front()) && take_currency(true)))) {
    }
  }

  bool take_sign() noexcept {
    is_open_ = drop_one_of(u"(");
    has_sign_ = is_open_ || drop_one_of(signs);
    return has_sign_;
  }

  /// One that is written in letters stands apart from the digits in front of it, or ends the text.
  bool take_currency(bool const is_in_front) noexcept {
    bool const is_too_long = !is_in_front && rest_.size() > longest_currency + 2;
    if (number_.dress.currency != 0 || is_too_long) {
      return false;
    }
    bool const is_word = textio::platform::is_letter(rest_.front());
    std::size_t length = 1;
    number_.dress.currency = is_word ? std::uint8_t{0} : currency_number(rest_.front());
    if (number_.dress.currency == 0) {
      length = is_in_front ? length_of_currency_word(rest_)
                           : std::min(rest_.size(), rest_.find_first_of(u"-)"));
      bool const has_length = length > 0 && length <= longest_currency;
      number_.dress.currency =
          has_length ? currency_number(rest_.substr(0, length)) : std::uint8_t{0};
    }
    if (number_.dress.currency == 0) {
      return false;
    }
    rest_.remove_prefix(length);
    if (is_in_front) {
      drop_blanks();
    }
    return true;
  }

  /// A quick look: dates and times leave here.
  [[nodiscard]] bool may_be_back() const noexcept {
    constexpr std::size_t longest = 10;
    char16_t const c = rest_.front();
    return rest_.size() <= longest &&
           (c == u' ' || c == u'%' || c == u'-' || c == u')' || c > 0x7F || may_start_currency(c));
  }

  /// A per cent sign, a currency, a minus sign, the closing parenthesis; blanks between them.
  bool take_back() noexcept {
    do {
      bool const has_blank = is_one_of(rest_.front(), blanks);
      drop_blanks();
      if (rest_.empty() || !(take_share() || (!has_blank && take_end_of_negative()) ||
                             (may_start_currency(rest_.front()) && take_currency(false)))) {
        return false;
      }
    } while (!rest_.empty());
    return true;
  }

  bool take_share() noexcept {
    NumberDress& dress = number_.dress;
    if (dress.percent || dress.per_mille) {
      return false;
    }
    dress.percent = drop_one_of(u"%");
    dress.per_mille = drop_one_of(u"\u2030");
    return dress.percent || dress.per_mille;
  }

  /// A mark with nothing behind it and a dash stand for an amount without decimals, and no minus.
  bool take_end_of_negative() noexcept {
    if (is_open_ && drop_one_of(u")")) {
      is_open_ = false;
      number_.dress.parentheses = true;
      return true;
    }
    if (has_sign_ || groups_[num_marks_] == 0 || !drop_one_of(u"-\u2212")) {
      return false;
    }
    has_sign_ = true;
    number_.dress.minus_behind = true;
    return true;
  }

  std::size_t take_digits() noexcept {
    std::size_t const count = textio::platform::leading_digits(rest_);
    rest_.remove_prefix(count);
    return count;
  }

  /// Digit groups and the marks between them; true when there is a digit.
  bool take_groups() noexcept {
    starts_with_zero_ = rest_.starts_with(u'0');
    number_.leading_zeros = starts_with_zero_ && rest_.size() > 1 && is_digit(rest_[1]);
    groups_[0] = take_digits();
    bool has_digits = groups_[0] > 0;
    while (!rest_.empty() && num_marks_ + 1 < max_groups && is_mark()) {
      marks_[num_marks_] = rest_.front();
      rest_.remove_prefix(1);
      groups_[++num_marks_] = take_digits();
      has_digits = has_digits || groups_[num_marks_] > 0;
    }
    return has_digits;
  }

  /// A mark of thousands belongs to a number only with a digit behind it.
  [[nodiscard]] bool is_mark() const noexcept {
    char16_t const c = rest_.front();
    return is_one_of(c, rules_.decimal_marks) ||
           (is_one_of(c, rules_.thousands_marks) && rest_.size() > 1 && is_digit(rest_[1]));
  }

  /// Groups of a number in thousands: up to three digits, then twos (in the Indian manner) or
  /// threes, the last one of `end` a three; the same mark between all of them. No such number
  /// begins with a zero.
  [[nodiscard]] bool are_thousands(std::size_t const end) const noexcept {
    if (groups_[0] == 0 || groups_[0] > 3 || groups_[end] != 3 || starts_with_zero_ ||
        !is_one_of(marks_[0], rules_.thousands_marks)) {
      return false;
    }
    for (std::size_t i = 1; i < end; ++i) {
      if ((groups_[i] != 3 && groups_[i] != 2) || marks_[i] != marks_[0]) {
        return false;
      }
    }
    return true;
  }

  /// Whether the last mark may stand before the decimals.
  [[nodiscard]] bool are_decimals() const noexcept {
    return is_one_of(marks_[num_marks_ - 1], rules_.decimal_marks) &&
           groups_[num_marks_] <= rules_.max_decimals;
  }

  /// What the marks between the groups mean; false when they make no number.
  bool read_marks() noexcept {
    if (num_marks_ == 0) {
      return true;
    }
    char16_t const last = marks_[num_marks_ - 1];
    if (num_marks_ == 1) {
      return read_single_mark(last);
    }
    if (last == marks_[0]) {
      number_.marks.thousands = last;
      return are_thousands(num_marks_);
    }
    number_.is_integer = false;
    number_.marks = {last, marks_[0], false};
    return are_decimals() && are_thousands(num_marks_ - 1);
  }

  /// Of what may be both, a point stands before decimals and a comma between thousands.
  bool read_single_mark(char16_t const mark) noexcept {
    bool const groups = are_thousands(1);
    bool const decimals = are_decimals() && (mark != u',' || !groups) &&
                          (mark != u',' || groups_[1] > 0 || rules_.mark_is_known);
    number_.is_integer = !decimals;
    if (decimals) {
      number_.marks = {mark, 0, groups};
    } else {
      number_.marks = {0, mark, are_decimals()};
    }
    bool const has_too_many_decimals = mark == u'.' && groups_[1] > rules_.max_decimals;
    return decimals || (groups && !has_too_many_decimals);
  }

  void take_exponent() noexcept {
    std::size_t const length =
        textio::strategies::length_of_exponent(rest_, rules_.exponent_characters);
    number_.is_integer = number_.is_integer && length == 0;
    rest_.remove_prefix(length);
  }

  view rest_;
  NumberRules const& rules_;
  std::array<std::size_t, max_groups> groups_{};
  std::array<char16_t, max_groups> marks_{};
  std::size_t num_marks_ = 0;
  bool has_sign_ = false;  ///< a parenthesis is one
  bool is_open_ = false;   ///< a parenthesis waits for its end
  bool starts_with_zero_ = false;
  ScannedNumber number_;
};

/// Whether a text that begins with a letter may be an amount of money: a quick look, since most
/// such texts are words.
bool may_be_amount(view const text) noexcept {
  return may_start_currency(text.front()) &&
         (is_digit(text.back()) || is_one_of(text.back(), u")-\u2212")) &&
         length_of_currency_word(text) > 0;
}

}  // namespace

std::optional<ScannedNumber> scan_number(view const text, NumberRules const& rules) noexcept {
  if (text.empty() || text.front() > 0x2212 ||
      (text.front() >= u'A' && text.front() <= u'z' && !may_be_amount(text))) {
    return std::nullopt;  // most values that are no numbers
  }
  return NumberScan(text, rules).run();
}

}  // namespace textimport::analysis
