// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/number_scan_internal.hpp"

#include <array>
#include <cstddef>

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr bool is_digit(char16_t const c) noexcept {
  return c >= u'0' && c <= u'9';
}

bool is_one_of(char16_t const c, view const set) noexcept {
  return set.find(c) != view::npos;
}

/// Takes a number apart from left to right.
class NumberScan {
 public:
  explicit NumberScan(view const text) noexcept : rest_(text) {}

  std::optional<ScannedNumber> run() noexcept {
    drop_one_of(u"+-\u2212");
    drop_one_of(u"$\u20AC\u00A3\u00A5");
    drop_one_of(u"+-");
    bool const has_digits = take_groups();
    if (!has_digits || !read_marks() || !take_exponent()) {
      return std::nullopt;
    }
    drop_one_of(u" ");
    drop_one_of(u"%\u2030\u20AC$");
    return rest_.empty() ? std::optional(number_) : std::nullopt;
  }

 private:
  static constexpr std::size_t max_groups = 12;

  void drop_one_of(view const set) noexcept {
    if (!rest_.empty() && is_one_of(rest_.front(), set)) {
      rest_.remove_prefix(1);
    }
  }

  std::size_t take_digits() noexcept {
    std::size_t count = 0;
    while (count < rest_.size() && is_digit(rest_[count])) {
      ++count;
    }
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

  /// A blank belongs to a number only with a digit behind it.
  [[nodiscard]] bool is_mark() const noexcept {
    char16_t const c = rest_.front();
    if (c == u'.' || c == u',') {
      return true;
    }
    return is_one_of(c, u" '\u00A0\u202F\u2019") && rest_.size() > 1 && is_digit(rest_[1]);
  }

  /// Groups of a number in thousands: up to three digits, then twos (in the Indian manner) or
  /// threes, the last one of `end` a three.
  [[nodiscard]] bool are_thousands(std::size_t const end) const noexcept {
    if (groups_[0] == 0 || groups_[0] > 3 || groups_[end] != 3) {
      return false;
    }
    for (std::size_t i = 1; i < end; ++i) {
      if (groups_[i] != 3 && groups_[i] != 2) {
        return false;
      }
    }
    for (std::size_t i = 1; i < end; ++i) {
      if (marks_[i] != marks_[0]) {
        return false;
      }
    }
    return true;
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
    if (last == marks_[0] && are_thousands(num_marks_)) {
      number_.marks.thousands = last;
      return true;
    }
    bool const is_decimal = (last == u'.' || last == u',') && last != marks_[0];
    if (!is_decimal || !are_thousands(num_marks_ - 1)) {
      return false;
    }
    number_.is_integer = false;
    number_.marks = {last, marks_[0], false};
    return true;
  }

  bool read_single_mark(char16_t const mark) noexcept {
    if (mark == u'.' || (mark == u',' && groups_[1] > 0 && !are_thousands(1))) {
      number_.is_integer = false;
      number_.marks = {mark, 0, are_thousands(1) && !number_.leading_zeros && groups_[0] > 0};
      return true;
    }
    number_.marks = {0, mark, mark == u','};
    return are_thousands(1);
  }

  bool take_exponent() noexcept {
    if (rest_.empty() || !is_one_of(rest_.front(), u"eEdD")) {
      return true;
    }
    rest_.remove_prefix(1);
    drop_one_of(u"+-");
    number_.is_integer = false;
    return take_digits() > 0;
  }

  view rest_;
  std::array<std::size_t, max_groups> groups_{};
  std::array<char16_t, max_groups> marks_{};
  std::size_t num_marks_ = 0;
  ScannedNumber number_;
};

}  // namespace

std::optional<ScannedNumber> scan_number(view const text) noexcept {
  if (text.empty() || text.front() > 0x20AC || (text.front() >= u'A' && text.front() <= u'z')) {
    return std::nullopt;  // most values that are no numbers
  }
  return NumberScan(text).run();
}

}  // namespace textimport::analysis
