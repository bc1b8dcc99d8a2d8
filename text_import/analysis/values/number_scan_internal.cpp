// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/number_scan_internal.hpp"

#include <array>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/strategies/value_grammar_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;
using view = std::u16string_view;

bool is_one_of(char16_t const c, view const set) noexcept {
  return set.find(c) != view::npos;
}

/// Takes a number apart from left to right.
class NumberScan {
 public:
  NumberScan(view const text, NumberRules const& rules) noexcept : rest_(text), rules_(rules) {}

  std::optional<ScannedNumber> run() noexcept {
    if (!is_digit(rest_.front())) {
      drop_sign_and_currency();
    }
    bool const has_digits = take_groups();
    if (!has_digits || !read_marks()) {
      return std::nullopt;
    }
    take_exponent();
    if (!rest_.empty()) {
      bool const has_blank = drop_one_of(u" ");
      if (!drop_one_of(u"%\u2030\u20AC$") && has_blank) {
        return std::nullopt;
      }
    }
    return rest_.empty() ? std::optional(number_) : std::nullopt;
  }

 private:
  static constexpr std::size_t max_groups = 12;

  bool drop_one_of(view const set) noexcept {
    bool const drops = !rest_.empty() && is_one_of(rest_.front(), set);
    rest_.remove_prefix(drops ? 1 : 0);
    return drops;
  }

  /// One sign, in front of the currency or behind it.
  void drop_sign_and_currency() noexcept {
    constexpr view signs = u"+-\u2212";
    bool const has_sign = drop_one_of(signs);
    if (drop_one_of(u"$\u20AC\u00A3\u00A5") && !has_sign) {
      drop_one_of(signs);
    }
  }

  std::size_t take_digits() noexcept {
    std::size_t const count = textio::platform::leading_digits(rest_);
    rest_.remove_prefix(count);
    return count;
  }

  /// Digit groups and the marks between them; true when there is a digit.
  bool take_groups() noexcept {
    number_.leading_zeros = rest_.size() > 1 && rest_[0] == u'0' && is_digit(rest_[1]);
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
  /// threes, the last one of `end` a three; the same mark between all of them.
  [[nodiscard]] bool are_thousands(std::size_t const end) const noexcept {
    if (groups_[0] == 0 || groups_[0] > 3 || groups_[end] != 3 ||
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
      number_.marks = {mark, 0, groups && !number_.leading_zeros};
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
  ScannedNumber number_;
};

}  // namespace

std::optional<ScannedNumber> scan_number(view const text, NumberRules const& rules) noexcept {
  if (text.empty() || text.front() > 0x2212 || (text.front() >= u'A' && text.front() <= u'z')) {
    return std::nullopt;  // most values that are no numbers
  }
  return NumberScan(text, rules).run();
}

}  // namespace textimport::analysis
