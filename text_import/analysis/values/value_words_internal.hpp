// SPDX-License-Identifier: MIT
//
// The words that stand for no value, and for true and false, where nobody says which they are.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

/// Whether the text is one of the words, which are written in lower case, in any letter case.
template <std::size_t n>
[[nodiscard]] bool is_one_of(std::u16string_view const text,
                             std::array<std::u16string_view, n> const& words) noexcept {
  return std::ranges::any_of(words, [&](std::u16string_view const word) {
    return textio::platform::equals_ignoring_case(text, word);
  });
}

/// NaN is none of them, but a number that may be missing.
[[nodiscard]] inline bool is_usual_missing_word(std::u16string_view const text) noexcept {
  static constexpr std::array<std::u16string_view, 13> words{
      u"na", u"n/a", u"null", u"nil", u"none", u"#n/a",   u"\\n",
      u"-",  u"--",  u"?",    u".",   u"*",    u"missing"};
  return text.size() <= 7 && is_one_of(text, words);
}

[[nodiscard]] inline bool is_boolean_word(std::u16string_view const text) noexcept {
  static constexpr std::array<std::u16string_view, 4> words{u"true", u"false", u"yes", u"no"};
  return text.size() <= 5 && is_one_of(text, words);
}

}  // namespace textimport::analysis
