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
inline constexpr std::array<std::u16string_view, 13> usual_missing_words{
    u"na", u"n/a", u"null", u"nil", u"none", u"#n/a",   u"\\n",
    u"-",  u"--",  u"?",    u".",   u"*",    u"missing"};

inline constexpr std::array<std::u16string_view, 4> boolean_words{u"true", u"false", u"yes", u"no"};

/// For each ASCII character in lower case, whether one of the words begins with it, or a NaN or an
/// infinity, which may have a sign.
inline constexpr std::array<bool, 128> word_starts = [] {
  std::array<bool, 128> starts{};
  for (char16_t const c : std::u16string_view(u"+-ni")) {
    starts[c] = true;
  }
  for (std::u16string_view const word : usual_missing_words) {
    starts[word.front()] = true;
  }
  for (std::u16string_view const word : boolean_words) {
    starts[word.front()] = true;
  }
  return starts;
}();

/// False for most texts that are none of the words, and neither NaN nor infinity: a quick look that
/// saves the many comparisons. The text is not empty.
[[nodiscard]] inline bool may_be_word(std::u16string_view const text) noexcept {
  constexpr std::size_t longest = 9;  // "-infinity"
  char16_t const start = textio::platform::to_lower(text.front());
  return text.size() <= longest && start < word_starts.size() && word_starts[start];
}

[[nodiscard]] inline bool is_usual_missing_word(std::u16string_view const text) noexcept {
  return is_one_of(text, usual_missing_words);
}

[[nodiscard]] inline bool is_boolean_word(std::u16string_view const text) noexcept {
  return is_one_of(text, boolean_words);
}

}  // namespace textimport::analysis
