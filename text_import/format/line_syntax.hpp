// SPDX-License-Identifier: MIT
//
// What a line may have beside delimiters, quotes and comment lines: borders, escapes, comments at
// its end, a last field that is the rest of it. A guess about a text and the reader that follows it
// say it by the same members.
#pragma once

#include <cstddef>

namespace textimport {

/// Without any of them a line is plain.
struct LineSyntax {
  /// Each line begins and ends with a delimiter, which makes no column; blanks may stand outside.
  bool has_outer_bars = false;
  bool has_rulers = false;        ///< lines that are drawn between records are no records
  char16_t escape = 0;            ///< behind it nothing has its special meaning; 0: there is none
  bool has_end_comments = false;  ///< a comment marker behind a blank hides the rest of the line
  bool quotes_behind_blanks = false;  ///< blanks may stand between a delimiter and its quote
  std::size_t rest_of_line = 0;  ///< that many fields, and the last is the rest; 0: as many as come

  friend bool operator==(LineSyntax const&, LineSyntax const&) = default;
};

/// Whether nothing is said that a plain line does not have.
[[nodiscard]] inline bool is_plain(LineSyntax const& syntax) noexcept {
  return syntax == LineSyntax{};
}

}  // namespace textimport
