// SPDX-License-Identifier: MIT
//
// What is known before a text is analysed: what is given, what is excluded, and how much is looked
// at. What is given stays as it is, and the rest is found out around it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "text_format_detection/model/enums.hpp"
#include "text_import/format/format.hpp"

namespace textimport {

/// A count of everything there is.
inline constexpr std::size_t all_records = static_cast<std::size_t>(-1);

/// How values are written, as far as the caller says so. The types of columns go by it.
struct ValueRequest {
  std::optional<char16_t> decimal_mark;  ///< 0: numbers have no decimals
  std::optional<char16_t> thousands_mark;
  /// Words that stand for a missing value, in the place of the usual ones.
  std::optional<std::vector<std::u16string>> missing_words;
  std::u16string date_pattern;         ///< empty: any of the usual forms
  std::u16string exponent_characters;  ///< set of code units; empty: eEdD
  std::optional<std::uint32_t> max_decimals;
  char16_t leading_character = 0;  ///< dropped once from the start of a value; 0: none
  bool embedded_numbers = false;   ///< a value that holds a digit anywhere counts as a number
  bool keeps_blanks = false;       ///< blanks around a value belong to it

  friend bool operator==(ValueRequest const&, ValueRequest const&) = default;
};

/// What is done with delimiters, lines and fields that may mean one thing or another.
struct RecordRules {
  std::optional<textio::enums::ConsecutiveDelimitersRule> consecutive_delimiters;
  std::optional<textio::enums::LeadingDelimitersRule> leading_delimiters;
  std::optional<textio::enums::TrailingDelimitersRule> trailing_delimiters;
  std::optional<textio::enums::EmptyLineRule> empty_lines;
  std::optional<textio::enums::PartialFieldRule> partial_fields;

  friend bool operator==(RecordRules const&, RecordRules const&) = default;
};

struct Request {
  std::optional<Layout> layout;
  std::vector<std::u16string> delimiters;  ///< empty: to be found
  /// Never delimiters, each of one or more code units.
  std::vector<std::u16string> excluded_delimiters;
  std::vector<std::size_t> widths;         ///< in UTF-16 code units; empty: to be found
  std::optional<std::size_t> num_columns;  ///< how many are expected
  /// The data begin behind that many lines.
  std::optional<std::size_t> header_lines;
  /// The lines that hold names, from 0 and ascending; an empty list: there are none.
  std::optional<std::vector<std::size_t>> name_lines;
  /// The last line of the data, from 0.
  std::optional<std::size_t> last_line;

  std::optional<char16_t> quote;  ///< 0: no field is quoted
  /// What takes the meaning of a delimiter or quote behind it; 0: nothing does.
  std::optional<char16_t> escape;
  /// As CommentFormat::markers; an empty list: there are no comments.
  std::optional<std::vector<std::u16string>> comment_markers;
  std::optional<std::u16string> whitespace;
  std::vector<std::u16string> line_endings;  ///< empty: CR LF, LF and CR
  RecordRules rules;
  ValueRequest values;

  /// A whole Format of a file of the same kind: all of it is given. Members above that are set come
  /// before it.
  std::optional<Format> format;

  /// How many records are sampled.
  std::size_t records = 250;
  /// The engine's own decision is the answer, without other readings and rules.
  bool engine_decides = false;
};

/// The layout that the request amounts to: the one that is named, or the one that delimiters or
/// widths imply. Empty when it is to be found.
[[nodiscard]] inline std::optional<Layout> implied_layout(Request const& request) {
  if (!request.delimiters.empty()) {
    return Layout::Delimited;
  }
  if (!request.widths.empty()) {
    return Layout::FixedWidth;
  }
  return request.layout;
}

}  // namespace textimport
