// SPDX-License-Identifier: MIT
//
// What tables are drawn with: bars between their columns, and lines that rule them.
#pragma once

#include <string_view>

namespace textimport::splitting {

/// Bars that stand between columns, the most usual one first.
inline constexpr std::u16string_view bars = u"|\u2502\u2503\u2551\u00A6";

/// Whether a character is drawn to the left and right: part of a ruler between its joints.
[[nodiscard]] constexpr bool is_stroke(char16_t const c) noexcept {
  return std::u16string_view(u"-=\u2500\u2501\u2504\u2505\u2508\u2509\u254C\u254D\u2550").find(c) !=
         std::u16string_view::npos;
}

/// Whether rulers and bars cross in a character.
[[nodiscard]] constexpr bool is_joint(char16_t const c) noexcept {
  bool const is_drawn = c >= u'\u2500' && c <= u'\u257F';
  return c == u'+' || bars.find(c) != std::u16string_view::npos || (is_drawn && !is_stroke(c));
}

/// Whether a line is drawn, such as "+---+---+", "|:--|--:|", "----+----" or what is made of box
/// drawing characters. A row of single dashes between blanks is a row of values.
[[nodiscard]] bool is_ruler(std::u16string_view line) noexcept;

}  // namespace textimport::splitting
