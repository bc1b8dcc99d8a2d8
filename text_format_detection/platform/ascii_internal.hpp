// SPDX-License-Identifier: MIT
//
// The few questions about ASCII characters that the recognition of values asks. The functions of
// the C library would answer by the locale; these never do.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace textio::platform {

[[nodiscard]] constexpr bool is_digit(char16_t const unit) noexcept {
  return unit >= u'0' && unit <= u'9';
}

/// The lower-case form of an ASCII capital; every other unit unchanged.
[[nodiscard]] constexpr char16_t to_lower(char16_t const unit) noexcept {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

[[nodiscard]] constexpr bool is_letter(char16_t const unit) noexcept {
  return to_lower(unit) >= u'a' && to_lower(unit) <= u'z';
}

[[nodiscard]] constexpr bool is_sign(char16_t const unit) noexcept {
  return unit == u'+' || unit == u'-';
}

/// The number of digits at the start of the text, counted up to `limit`.
[[nodiscard]] constexpr std::size_t leading_digits(
    std::u16string_view const text, std::size_t const limit = std::u16string_view::npos) noexcept {
  std::size_t const end = std::min(limit, text.size());
  std::size_t count = 0;
  while (count < end && is_digit(text[count])) {
    ++count;
  }
  return count;
}

/// True when the text begins with `lower` in any letter case; `lower` is written in lower case.
[[nodiscard]] constexpr bool starts_with_ignoring_case(std::u16string_view const text,
                                                       std::u16string_view const lower) noexcept {
  return text.size() >= lower.size() &&
         std::equal(lower.begin(), lower.end(), text.begin(),
                    [](char16_t const a, char16_t const b) { return a == to_lower(b); });
}

/// True when the text is `lower` in any letter case; `lower` is written in lower case.
[[nodiscard]] constexpr bool equals_ignoring_case(std::u16string_view const text,
                                                  std::u16string_view const lower) noexcept {
  return text.size() == lower.size() && starts_with_ignoring_case(text, lower);
}

}  // namespace textio::platform
