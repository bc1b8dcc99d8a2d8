// SPDX-License-Identifier: MIT
//
// What a survey says of a column: its type and the evidence for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "text_import/export.hpp"

namespace textimport {

enum class ValueType : std::uint8_t {
  Empty,  ///< no value in the sample
  Integer,
  Real,
  ComplexNumber,
  Boolean,
  Date,
  DateTime,
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

/// The word for a type or an order in machine-readable output: "date-time", "day-first" ...
[[nodiscard]] TEXT_IMPORT_API char const* name_of(ValueType type) noexcept;
[[nodiscard]] TEXT_IMPORT_API char const* name_of(DateOrder order) noexcept;

/// Where a column of fixed width lies in a line, from 0 up to, not including, the end.
struct ColumnExtent {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// One column of the data. Counts are of the sampled records.
struct ColumnFindings {
  std::u16string name;  ///< from the line of names; empty when there is none
  ValueType type = ValueType::Empty;
  std::size_t values = 0;   ///< fields that hold a value: not empty, no missing-value word
  std::size_t fitting = 0;  ///< of these, those of the type
  std::size_t empty = 0;    ///< fields that are empty
  /// Words for a missing value that occur, each once, in the order of their first appearance.
  std::vector<std::u16string> missing_words;
  char16_t decimal_mark = 0;    ///< in the values, 0 when there is none
  char16_t thousands_mark = 0;  ///< likewise
  DateOrder order = DateOrder::None;
  /// Whole numbers with zeros in front, such as postal codes: to be kept as text.
  bool leading_zeros = false;
  bool quoted = false;            ///< every value stands in quotes
  std::size_t longest_value = 0;  ///< in characters (code points), quotes not counted
  /// Of fixed-width columns: the extent in code points, and in bytes of the file where every
  /// sampled line agrees on it.
  std::optional<ColumnExtent> characters;
  std::optional<ColumnExtent> bytes;
};

}  // namespace textimport
