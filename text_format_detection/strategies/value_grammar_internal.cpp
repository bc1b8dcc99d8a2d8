// SPDX-License-Identifier: MIT
//
// The grammar of single values. Functions named length_of_... return how many code units at the
// start of a text belong to a thing, 0 when it does not stand there.
#include "text_format_detection/strategies/value_grammar_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textio::strategies {
namespace {

using platform::equals_ignoring_case;
using platform::is_digit;
using platform::is_sign;
using platform::leading_digits;
using platform::starts_with_ignoring_case;
using platform::to_lower;

std::size_t length_of_sign(std::u16string_view const text) noexcept {
  return !text.empty() && is_sign(text.front()) ? 1 : 0;
}

/// One of the exponent characters, a sign or none, at least one digit.
std::size_t length_of_exponent(std::u16string_view const text,
                               NumberGrammar const& grammar) noexcept {
  if (text.empty() || grammar.exponent_characters.find(text.front()) == std::u16string_view::npos) {
    return 0;
  }
  std::size_t const start = 1 + length_of_sign(text.substr(1));
  std::size_t const digits = leading_digits(text.substr(start));
  return digits > 0 ? start + digits : 0;
}

/// NaN, Inf, or digits with or without a point and an exponent; no sign. Digits behind the point
/// beyond the limit are not taken.
std::size_t length_of_unsigned(std::u16string_view const text,
                               NumberGrammar const& grammar) noexcept {
  if (starts_with_ignoring_case(text, u"nan") || starts_with_ignoring_case(text, u"inf")) {
    return 3;
  }
  std::size_t length = leading_digits(text);
  std::size_t digits = length;
  if (length < text.size() && text[length] == u'.') {
    std::size_t const decimals = leading_digits(text.substr(length + 1), grammar.max_decimals);
    length += 1 + decimals;
    digits += decimals;
  }
  return digits > 0 ? length + length_of_exponent(text.substr(length), grammar) : 0;
}

bool is_imaginary_unit(std::u16string_view const text) noexcept {
  return text == u"i" || text == u"j";
}

}  // namespace

bool is_number(std::u16string_view text, NumberGrammar const& grammar) noexcept {
  text.remove_prefix(length_of_sign(text));
  std::size_t const real = length_of_unsigned(text, grammar);
  text.remove_prefix(real);
  if (real == 0 || text.empty() || is_imaginary_unit(text)) {
    return real > 0;
  }
  if (!is_sign(text.front())) {
    return false;
  }
  text.remove_prefix(1);
  std::size_t const imaginary = length_of_unsigned(text, grammar);
  return imaginary > 0 && is_imaginary_unit(text.substr(imaginary));
}

bool is_nan_or_inf(std::u16string_view text) noexcept {
  text.remove_prefix(length_of_sign(text));
  return equals_ignoring_case(text, u"nan") || equals_ignoring_case(text, u"inf");
}

bool is_hexadecimal(std::u16string_view const text) noexcept {
  return starts_with_ignoring_case(text, u"0x") &&
         std::all_of(text.begin() + 2, text.end(), [](char16_t const unit) {
           return is_digit(unit) || (to_lower(unit) >= u'a' && to_lower(unit) <= u'f');
         });
}

bool is_binary(std::u16string_view const text) noexcept {
  return starts_with_ignoring_case(text, u"0b") &&
         std::all_of(text.begin() + 2, text.end(),
                     [](char16_t const unit) { return unit == u'0' || unit == u'1'; });
}

std::size_t count_duration_groups(std::u16string_view text) noexcept {
  constexpr std::size_t max_groups = 4;
  text.remove_prefix(length_of_sign(text));
  std::size_t groups = 0;
  for (bool more = true; more; ++groups) {
    std::size_t const digits = leading_digits(text);
    if (digits == 0 || groups == max_groups) {
      return 0;
    }
    text.remove_prefix(digits);
    more = text.starts_with(u':');
    text.remove_prefix(more ? 1 : 0);
  }
  if (text.starts_with(u'.')) {
    text.remove_prefix(1 + leading_digits(text.substr(1)));
  }
  return text.empty() && groups >= 2 ? groups : 0;
}

}  // namespace textio::strategies
