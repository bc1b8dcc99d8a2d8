// SPDX-License-Identifier: MIT
//
// How the values of a column are to be understood when their type is worked out. A plain record:
// callers fill it, strategies keep a copy with a whitespace set of their own.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ostrel::io::text::typedetection {

/// What is done to a field's text before and while its type is worked out.
///
/// In a string that is called a set every code unit is a member; the order does not matter.
/// The members stand in the order that callers who fill the record by position rely on.
struct TypeAnalyzerOptions {
  /// Set: trimmed from both ends of a field. A strategy's constructor replaces it.
  std::u16string whitespace = u" \t";

  /// Dropped once from the start of a trimmed field, such as a currency sign; 0xFFFF drops nothing.
  char16_t leading_character = 0xFFFF;

  /// Texts that count as an empty field, compared exactly and after trimming.
  /// Read only when `use_missing_values` is set.
  std::vector<std::u16string> missing_values;

  /// Set and the character that takes the place of each member, such as "," and '.': numbers and
  /// durations are read from a copy replaced so. Read only when `replace_characters` is set.
  std::u16string first_replacement_set;
  char16_t first_replacement = u'\0';

  /// Likewise; applied before the first set, which therefore sees what this one put in.
  std::u16string second_replacement_set;
  char16_t second_replacement = u'\0';

  /// Set: removed from the copy that decimal numbers are read from, before any replacement, such
  /// as the separator of thousands. Read only when `remove_characters` is set.
  std::u16string removal_set;

  /// A text that holds a number somewhere, and is nothing else by then, counts as a number.
  bool embedded_numbers = false;

  /// Whether `whitespace` is trimmed.
  bool trim_whitespace = true;

  /// Whether `missing_values` is looked at.
  bool use_missing_values = false;

  /// Whether the two replacement sets apply.
  bool replace_characters = false;

  /// Whether the removal set applies.
  bool remove_characters = false;

  /// The format that dates have to follow, as `is_datetime` reads it; empty: the built-in forms.
  std::u16string datetime_format;

  /// Set: what may introduce the exponent of a number.
  std::u16string exponent_characters = u"eEdD";

  /// The largest number of digits that a number may have behind its decimal point.
  /// Read only when `decimal_digit_limit_set` is set.
  std::uint32_t decimal_digit_limit = 0;

  /// Whether the digit limit applies.
  bool decimal_digit_limit_set = false;
};

}  // namespace ostrel::io::text::typedetection
