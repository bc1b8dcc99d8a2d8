// SPDX-License-Identifier: MIT
//
// How a text is to be cut into records and fields. A plain record: callers fill it in, strategies
// copy and adjust it, record readers read it. Members that detection does not read are carried
// along so that the record which comes back is the one that a record reader expects.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "text_format_detection/model/enums.hpp"

namespace textio {

/// A count that is not known: header lines still to be detected, variables not yet counted.
inline constexpr std::size_t unknown_count = std::numeric_limits<std::size_t>::max();

/// The code unit that ends a text: nothing at or behind the first one is read, and positions past
/// the end of a text read as it.
inline constexpr char16_t end_mark = 0xFFFF;

}  // namespace textio

namespace textio::parser {

/// The parsing options. May be read by several threads at once while nobody writes it.
struct options {
  /// The field delimiters, each of one or more code units; an empty one never matches. Where
  /// several match, the first in the list wins. A delimited strategy puts its own in place.
  std::vector<std::u16string> delimiters;

  /// The record terminators. Where several match, the first in the list wins, so "\r\n" stands
  /// before "\r". With an empty list the whole text is one record.
  std::vector<std::u16string> line_endings{u"\r\n", u"\n", u"\r"};

  /// Words that stand for a missing value. Carried for the record reader; type inspection has a
  /// list of its own in the type options.
  std::vector<std::u16string> missing_values;

  /// Comment markers, looked for at the start of a record only. Empty: no comments. Exactly two:
  /// an opening and a closing marker. Otherwise the first comments out the rest of the line and
  /// the others are ignored. An empty marker never matches.
  std::vector<std::u16string> comment_style;

  /// The set of whitespace code units; their order is irrelevant. Decides which records are blank.
  /// Strategies take their own delimiters out of it.
  std::u16string whitespace{u" \t"};

  /// The mark between groups of digits. Its first code unit never becomes a candidate delimiter.
  std::u16string thousands_separator;

  /// The first code unit opens and closes a quoted field; empty: no field is quoted.
  std::u16string quote_characters{u"\""};

  /// Characters that take a delimiter's meaning away. Carried for the record reader.
  std::u16string escape_characters;

  /// The layout that the caller asks for.
  enums::Layout layout = enums::Layout::Automatic;

  /// Fixed-width column widths in code units, left to right.
  std::vector<std::size_t> column_widths;

  /// The number of header lines before the data, or `unknown_count`.
  std::size_t header_lines = unknown_count;

  /// The number of variables that the caller expects; heeded when `ignore_num_variables` is false.
  std::size_t num_variables = 0;

  /// First record to read, counted from 0. Carried for the record reader.
  std::uint64_t first_record = 0;
  /// Largest number of records to read, 0 for all. Carried for the record reader.
  std::uint64_t max_records = 0;
  /// Largest length of a field in code units, 0 for any. Carried for the record reader.
  std::uint64_t max_field_length = 0;

  /// Which record reader reads the text; every strategy sets it.
  enums::ReaderKind reader_kind = enums::ReaderKind::Delimited;

  /// How undecodable bytes are treated. Carried for the record reader.
  std::uint8_t encoding_rule = 0;

  /// A character that never becomes a candidate delimiter: the mark between a number's whole part
  /// and its fraction, usually. `end_mark` excludes nothing.
  char16_t decimal_separator = end_mark;

  /// What a field that cannot be converted becomes. Carried for the record reader.
  std::uint8_t conversion_rule = 0;
  /// What a missing field becomes. Carried for the record reader.
  std::uint8_t missing_field_rule = 0;

  enums::ConsecutiveDelimitersRule consecutive_delimiters_rule =
      enums::ConsecutiveDelimitersRule::Split;
  enums::EmptyLineRule empty_lines = enums::EmptyLineRule::Skip;

  /// What fields beyond the last variable become. Carried for the record reader.
  std::uint8_t extra_fields_rule = 0;

  enums::LeadingDelimitersRule leading_delimiters_rule = enums::LeadingDelimitersRule::Keep;
  enums::TrailingDelimitersRule trailing_delimiters_rule = enums::TrailingDelimitersRule::Keep;
  enums::PartialFieldRule partial_field_rule = enums::PartialFieldRule::Keep;

  /// Carried for the record reader; delimited and space-aligned strategies clear it.
  bool auxiliary_flag = false;

  /// True: the number of header lines is to be detected. False: `header_lines` is taken as given.
  bool detect_header_lines = true;

  /// False: candidates with exactly `num_variables` variables are preferred, and a candidate with
  /// one field a record is acceptable.
  bool ignore_num_variables = true;

  /// Whether quotes are taken off. Carried for the record reader.
  std::uint8_t quote_rule = 0;
};

}  // namespace textio::parser
