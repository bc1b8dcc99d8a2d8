// SPDX-License-Identifier: MIT
//
// What stands around a value in a file and is no part of it: blanks and quotes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace textimport::analysis {

/// The text without blanks (spaces and tabs) at both ends.
[[nodiscard]] inline std::u16string_view trimmed(std::u16string_view text) noexcept {
  auto const is_blank = [](char16_t const c) { return c == u' ' || c == u'\t'; };
  while (!text.empty() && is_blank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && is_blank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

/// The same for a set of blanks of the caller's.
[[nodiscard]] inline std::u16string_view trimmed(std::u16string_view const text,
                                                 std::u16string_view const blanks) noexcept {
  std::size_t const first = text.find_first_not_of(blanks);
  return first == std::u16string_view::npos
             ? std::u16string_view{}
             : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Whether the text begins and ends with the quote; 0 is no quote.
[[nodiscard]] constexpr bool stands_in(std::u16string_view const text,
                                       char16_t const quote) noexcept {
  return quote != 0 && text.size() >= 2 && text.front() == quote && text.back() == quote;
}

/// The field without blanks around it and one pair of quotes, and without blanks inside of them.
[[nodiscard]] inline std::u16string_view unquoted(std::u16string_view const field,
                                                  char16_t const quote) noexcept {
  std::u16string_view const text = trimmed(field);
  return stands_in(text, quote) ? trimmed(text.substr(1, text.size() - 2)) : text;
}

/// The text with one quote for each two that stand side by side, those behind an escape left out;
/// an escape of 0 is none.
[[nodiscard]] inline std::u16string with_single_quotes(std::u16string_view const text,
                                                       char16_t const quote,
                                                       char16_t const escape = 0) {
  std::u16string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    plain += text[i];
    bool const has_next = i + 1 < text.size();
    if (has_next && escape != 0 && text[i] == escape) {
      plain += text[++i];
    } else if (has_next && text[i] == quote && text[i + 1] == quote) {
      ++i;
    }
  }
  return plain;
}

/// The text without the escapes in front of delimiters, quotes, line ends and escapes themselves.
/// One in front of anything else stays: it has a meaning of its own, as in "\N".
[[nodiscard]] inline std::u16string without_escapes(std::u16string_view const text,
                                                    char16_t const escape, char16_t const quote,
                                                    std::vector<std::u16string> const& delimiters) {
  auto const is_meant = [&](std::u16string_view const rest) {
    return rest.starts_with(escape) || rest.starts_with(u'\n') || rest.starts_with(u'\r') ||
           (quote != 0 && rest.starts_with(quote)) ||
           std::any_of(delimiters.begin(), delimiters.end(),
                       [rest](auto const& delimiter) { return rest.starts_with(delimiter); });
  };
  std::u16string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    i += text[i] == escape && is_meant(text.substr(i + 1)) ? 1U : 0U;
    plain += text[i];
  }
  return plain;
}

}  // namespace textimport::analysis
