// SPDX-License-Identifier: MIT
//
// The one grammar of single values: numbers, hexadecimal and binary integers, durations, a time of
// day beside a date. Each function looks at a text from left to right and without going back.
// Where values may be judged in more than one way, a policy says how: StrictValues is what scores
// are made of; a reader of people's files brings a more lenient one. All of it is inline, because
// the import library is built with it too, and nothing internal is exported. Functions named
// length_of_... return how many code units at the start of a text belong to a thing, 0 when it does
// not stand there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textio::strategies {

/// The policy behind the scores of strategies. Scores depend on each of its answers, odd ones too.
/// The members are all that a policy says.
struct StrictValues {
  /// "0x" and "0b" are numbers without a digit behind them.
  static constexpr bool takes_bare_prefix = true;

  /// Digits that a group of a duration may have in front of a colon: "1000:30" is one.
  static constexpr std::size_t max_group_digits = std::u16string_view::npos;

  /// Whether "Infinity" is one, beside "Inf".
  static constexpr bool takes_spelled_infinity = false;
};

/// What numbers may look like, beyond what they always look like.
struct NumberGrammar {
  std::u16string_view exponent_characters;               ///< set: what may introduce an exponent
  std::size_t max_decimals = std::u16string_view::npos;  ///< digits allowed behind the point
};

[[nodiscard]] constexpr std::size_t length_of_sign(std::u16string_view const text) noexcept {
  return !text.empty() && platform::is_sign(text.front()) ? 1 : 0;
}

/// One of the exponent characters, a sign or none, at least one digit.
[[nodiscard]] constexpr std::size_t length_of_exponent(
    std::u16string_view const text, std::u16string_view const exponent_characters) noexcept {
  if (text.empty() || exponent_characters.find(text.front()) == std::u16string_view::npos) {
    return 0;
  }
  std::size_t const start = 1 + length_of_sign(text.substr(1));
  std::size_t const digits = platform::leading_digits(text.substr(start));
  return digits > 0 ? start + digits : 0;
}

/// NaN, Inf, or digits with or without a point and an exponent; no sign. Digits behind the point
/// beyond the limit are not taken.
[[nodiscard]] constexpr std::size_t length_of_unsigned(std::u16string_view const text,
                                                       NumberGrammar const& grammar) noexcept {
  if (platform::starts_with_ignoring_case(text, u"nan") ||
      platform::starts_with_ignoring_case(text, u"inf")) {
    return 3;
  }
  std::size_t length = platform::leading_digits(text);
  std::size_t digits = length;
  if (length < text.size() && text[length] == u'.') {
    std::size_t const decimals =
        platform::leading_digits(text.substr(length + 1), grammar.max_decimals);
    length += 1 + decimals;
    digits += decimals;
  }
  return digits > 0 ? length + length_of_exponent(text.substr(length), grammar.exponent_characters)
                    : 0;
}

[[nodiscard]] constexpr bool is_imaginary_unit(std::u16string_view const text) noexcept {
  return text == u"i" || text == u"j";
}

/// True for a real number ("5.", ".5", "-1.5e3", "NaN", "+inf"), an imaginary one ("3i") or a
/// complex one ("1+2i", "1e3-Infj"). An exponent needs a digit, and so does what stands before it.
[[nodiscard]] constexpr bool is_number(std::u16string_view text,
                                       NumberGrammar const& grammar) noexcept {
  text.remove_prefix(length_of_sign(text));
  std::size_t const real = length_of_unsigned(text, grammar);
  text.remove_prefix(real);
  if (real == 0 || text.empty() || is_imaginary_unit(text)) {
    return real > 0;
  }
  if (!platform::is_sign(text.front())) {
    return false;
  }
  text.remove_prefix(1);
  std::size_t const imaginary = length_of_unsigned(text, grammar);
  return imaginary > 0 && is_imaginary_unit(text.substr(imaginary));
}

/// True for Inf in any letter case, with or without a sign.
template <typename Policy>
[[nodiscard]] constexpr bool is_infinity(std::u16string_view text) noexcept {
  text.remove_prefix(length_of_sign(text));
  return platform::equals_ignoring_case(text, u"inf") ||
         (Policy::takes_spelled_infinity && platform::equals_ignoring_case(text, u"infinity"));
}

/// True for NaN in any letter case, with or without a sign.
[[nodiscard]] constexpr bool is_nan(std::u16string_view text) noexcept {
  text.remove_prefix(length_of_sign(text));
  return platform::equals_ignoring_case(text, u"nan");
}

/// True for the prefix, in lower case here and any letter case there, and then digits of a kind.
template <typename Policy, typename IsDigit>
[[nodiscard]] constexpr bool is_prefixed(std::u16string_view const text,
                                         std::u16string_view const prefix,
                                         IsDigit const& is_digit) noexcept {
  return platform::starts_with_ignoring_case(text, prefix) &&
         (Policy::takes_bare_prefix || text.size() > prefix.size()) &&
         std::all_of(text.begin() + static_cast<std::ptrdiff_t>(prefix.size()), text.end(),
                     is_digit);
}

/// True for "0x" followed by nothing but hexadecimal digits, any letter case.
template <typename Policy>
[[nodiscard]] constexpr bool is_hexadecimal(std::u16string_view const text) noexcept {
  return is_prefixed<Policy>(text, u"0x", [](char16_t const unit) {
    char16_t const lower = platform::to_lower(unit);
    return platform::is_digit(unit) || (lower >= u'a' && lower <= u'f');
  });
}

/// True for "0b" followed by nothing but 0 and 1, any letter case.
template <typename Policy>
[[nodiscard]] constexpr bool is_binary(std::u16string_view const text) noexcept {
  return is_prefixed<Policy>(text, u"0b",
                             [](char16_t const unit) { return unit == u'0' || unit == u'1'; });
}

/// The number of digit groups of a duration such as "hh:mm" (2), "hh:mm:ss" (3) or "dd:hh:mm:ss.S"
/// (4); 0 for any other text. A sign may stand before the groups, a point with any number of digits
/// behind the last of them. The values of the groups are not looked at.
template <typename Policy>
[[nodiscard]] constexpr std::size_t count_duration_groups(std::u16string_view text) noexcept {
  constexpr std::size_t max_groups = 4;
  text.remove_prefix(length_of_sign(text));
  std::size_t groups = 0;
  for (bool more = true; more; ++groups) {
    std::size_t const digits = platform::leading_digits(text);
    if (digits == 0 || groups == max_groups) {
      return 0;
    }
    text.remove_prefix(digits);
    more = text.starts_with(u':');
    if (more && digits > Policy::max_group_digits) {
      return 0;
    }
    text.remove_prefix(more ? 1 : 0);
  }
  if (text.starts_with(u'.')) {
    text.remove_prefix(1 + platform::leading_digits(text.substr(1)));
  }
  return text.empty() && groups >= 2 ? groups : 0;
}

/// True for a time of day with seconds: it has the shape of a duration of three groups.
template <typename Policy>
[[nodiscard]] constexpr bool is_time_of_day(std::u16string_view const text) noexcept {
  return count_duration_groups<Policy>(text) == 3;
}

/// True for a time of day with seconds and what `is_date` takes, in either order, with spaces
/// between.
template <typename Policy, typename IsDate>
[[nodiscard]] constexpr bool is_time_beside_date(std::u16string_view const text,
                                                 IsDate const& is_date) {
  std::size_t const space = std::min(text.find(u' '), text.size());
  std::u16string_view const first = text.substr(0, space);
  std::size_t const next = std::min(text.find_first_not_of(u' ', space), text.size());
  std::u16string_view const second = text.substr(next);
  return (is_time_of_day<Policy>(first) && is_date(second)) ||
         (is_time_of_day<Policy>(second) && is_date(first));
}

}  // namespace textio::strategies
