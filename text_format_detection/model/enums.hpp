// SPDX-License-Identifier: MIT
//
// The one-byte enumerations that options, strategies and answers are written in. Their values are
// part of the interface: records are exchanged with record readers that store the plain bytes.
#pragma once

#include <cstdint>

namespace textio::enums {

/// The layout that the caller asks for.
enum class Layout : std::uint8_t {
  Automatic = 0,     ///< nothing asked for: every kind of strategy competes
  SpaceAligned = 1,  ///< blanks separate columns: a blank never leads to fixed-width detection
  FixedWidth = 2,    ///< fixed column widths, given or to be found
};

/// The record reader that reads a text.
enum class ReaderKind : std::uint8_t {
  Delimited = 0,
  FixedWidth = 1,
  Unused = 2,  ///< kept free: no reader has this number
  Line = 3,
};

/// What a run of delimiters means.
enum class ConsecutiveDelimitersRule : std::uint8_t {
  Split = 0,  ///< every delimiter ends a field: a run of n delimiters makes n - 1 empty fields
  Join = 1,   ///< a run counts as one delimiter
  Error = 2,  ///< a delimiter directly behind one raises consecutive_delimiters_error
};

/// What delimiters at the start of a record mean.
enum class LeadingDelimitersRule : std::uint8_t {
  Keep = 0,    ///< the first field is empty
  Ignore = 1,  ///< they are skipped
  Error = 2,   ///< they raise leading_delimiters_error
};

/// What delimiters at the end of a record mean.
enum class TrailingDelimitersRule : std::uint8_t {
  Keep = 0,    ///< the last field is empty
  Ignore = 1,  ///< the empty fields that they make are dropped
  Error = 2,   ///< they raise trailing_delimiters_error
};

/// What an empty or blank record means.
enum class EmptyLineRule : std::uint8_t {
  Skip = 0,   ///< neither stored nor counted
  Read = 1,   ///< stored as a record without fields; counted only when a text is read for real
  Error = 2,  ///< raises empty_line_rule
};

/// What the fixed-width reader does with a record that ends inside a column.
enum class PartialFieldRule : std::uint8_t {
  Keep = 0,         ///< the shortened field is stored and ends the record
  DropField = 1,    ///< nothing is stored for the column; scan status 2
  DropRecord = 2,   ///< nothing is stored for the column; scan status 3
  FillMissing = 3,  ///< nothing is stored for the column; scan status 1
  Wrap = 4,         ///< the line ending becomes part of the field; also every value above 5
  Error = 5,        ///< raises partial_field_error
};

/// The hypothesis that a strategy stands for; it selects the record reader.
enum class StrategyMode : std::uint8_t {
  Delimited = 0,
  SpaceAligned = 1,  ///< read by the delimited reader, runs of blanks joined
  FixedWidth = 2,
  LineReader = 3,
};

/// What the values of a column look like.
enum class ColumnType : std::uint8_t {
  Reserved = 0,        ///< not examined, yet never settled
  Number = 1,          ///< decimal or complex number, NaN or Inf
  Text = 2,            ///< what nothing else accepts
  DateTime = 3,        ///< a date with a time of day, or "NaT"
  Undecided = 5,       ///< every inspected field was empty or a missing-value word
  Date = 7,            ///< a date (in general: a date-time without a colon)
  Duration = 8,        ///< three or four digit groups joined by ":"
  Hexadecimal = 9,     ///< "0x" and hexadecimal digits
  Binary = 10,         ///< "0b" and binary digits
  ShortDuration = 11,  ///< two digit groups joined by ":"
  Delimiter = 12,      ///< a lone ",", "|" or ";": a sign that the text was cut at the wrong place
};

}  // namespace textio::enums
