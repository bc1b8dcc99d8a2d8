// SPDX-License-Identifier: MIT
//
// What a reader has to know of one column: its name, its type, and how its values are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "text_import/format/origin.hpp"

namespace textimport {

/// The type of a column: the narrowest that its values fit. One vocabulary for every layer.
enum class ValueType : std::uint8_t {
  Empty,  ///< no value in the sample
  Integer,
  Real,
  Complex,
  Boolean,
  Date,
  DateTime,
  Time,
  Duration,
  Hexadecimal,
  Binary,
  Text,
};

/// In which order the dates of a column write day, month and year.
enum class DateOrder : std::uint8_t {
  None,  ///< no dates, or the month is a word
  YearFirst,
  DayFirst,
  MonthFirst,
  Ambiguous,  ///< day or month first: no value tells
};

/// How the dates of a column are written.
struct DateFormat {
  DateOrder order = DateOrder::None;
  /// A pattern of yyyy MM dd HH mm ss and the like; empty: any of the usual forms in that order.
  std::u16string pattern;
  /// The zone that all values name, such as u"Z" or u"+01:00"; empty: none, or several.
  std::u16string zone;

  friend bool operator==(DateFormat const&, DateFormat const&) = default;
};

/// The unit in which numbers count from 1970-01-01T00:00:00Z, when they are points in time.
enum class EpochUnit : std::uint8_t { None, Seconds, Milliseconds, Microseconds, Nanoseconds };

/// How the numbers of a column are written. A mark of 0 stands for none.
struct NumberFormat {
  char16_t decimal_mark = 0;    ///< as the values show it; 0 when none has decimals
  char16_t thousands_mark = 0;  ///< as the values show it
  bool percent = false;         ///< values end in a per cent sign
  bool per_mille = false;       ///< values end in a per mille sign
  std::u16string currency;      ///< the sign or word before or behind values, empty for none
  /// Negative numbers stand in parentheses.
  bool parentheses_are_negative = false;
  bool minus_is_behind = false;  ///< negative numbers have their sign at the end: "12.50-"
  /// Remarks that stand behind some numbers, each once, in the order of appearance: "p", "*".
  std::vector<std::u16string> flags;
  EpochUnit epoch = EpochUnit::None;

  friend bool operator==(NumberFormat const&, NumberFormat const&) = default;
};

/// A stretch of a line, from 0 up to, not including, the end.
struct Extent {
  std::size_t begin = 0;
  std::size_t end = 0;

  friend bool operator==(Extent const&, Extent const&) = default;
};

/// One column of the table.
struct Column {
  /// From the lines of names, as it stands there; empty where there is none.
  std::u16string name;
  /// The same, made so that no other column has it and it is not empty: "c3", "amount_2".
  std::u16string unique_name;

  ValueType type = ValueType::Empty;
  Origin type_origin = Origin::Found;
  NumberFormat numbers;
  DateFormat dates;
  /// Words for a missing value that the column holds, each once, in the order of appearance.
  std::vector<std::u16string> missing_words;
  /// The words for true and for false of a boolean column, in the order of appearance.
  std::vector<std::u16string> true_words;
  std::vector<std::u16string> false_words;
  /// Whole numbers with zeros in front, such as postal codes: the column is text for that.
  bool leading_zeros = false;
  bool quoted = false;  ///< every value stands in quotes
  /// The value is the rest of the line, whatever delimiters it holds. Of the last column only.
  bool is_rest_of_line = false;

  /// Fixed-width columns: the extent in UTF-16 code units; in characters (code points) and in bytes
  /// of the file where every sampled line agrees on them.
  std::optional<Extent> code_units;
  std::optional<Extent> characters;
  std::optional<Extent> bytes;
  /// Fixed-width columns: how many code units at the end are blank in every line.
  std::size_t gutter = 0;

  friend bool operator==(Column const&, Column const&) = default;
};

}  // namespace textimport
