// SPDX-License-Identifier: MIT
//
// What a single value looks like to a reader who knows nothing of its column: finer than the
// engine's column types, since an analysis weighs values that the engine's tests call text.
#pragma once

#include <cstdint>

namespace textimport::analysis {

enum class ValueShape : std::uint8_t {
  Empty,
  Missing,  ///< a word that stands for no value: "NA", "null", "-" ...
  Integer,
  Real,
  ComplexNumber,
  Boolean,
  Date,
  DateTime,
  Duration,
  Hexadecimal,
  Binary,
  Word,    ///< text without blanks
  Phrase,  ///< text with blanks
  Broken,  ///< what a cut at the wrong place leaves: an odd quote, a foreign delimiter, an open
           ///< bracket, numbers run together
};

/// The marks inside a number; 0 where there is none.
struct NumberMarks {
  char16_t decimal = 0;
  char16_t thousands = 0;
  /// "1,234" and "1.234": the comma, held as `thousands`, may as well be the decimal mark, and the
  /// point, held as `decimal`, that of thousands.
  bool either = false;
};

/// What stands around the digits of a number.
struct NumberDress {
  bool percent = false;
  bool per_mille = false;
  bool parentheses = false;   ///< an accountant's negative number
  bool minus_behind = false;  ///< "12.50-"
  std::uint8_t currency = 0;  ///< position in currency_signs plus one; 0: none
  std::uint8_t flag = 0;      ///< code units of a remark at the end, such as " p" for provisional

  friend bool operator==(NumberDress const&, NumberDress const&) = default;
};

struct ValueLook {
  ValueShape shape = ValueShape::Empty;
  NumberMarks marks;           ///< of an integer or a real number
  NumberDress dress;           ///< likewise
  bool quoted = false;         ///< stood in quotes, which were taken off
  bool leading_zeros = false;  ///< an integer with zeros in front: a code rather than a number
};

/// True for the shapes that say more than text: numbers, dates, booleans ...
[[nodiscard]] constexpr bool is_typed(ValueShape const shape) noexcept {
  return shape >= ValueShape::Integer && shape <= ValueShape::Binary;
}

[[nodiscard]] constexpr bool is_number(ValueShape const shape) noexcept {
  return shape >= ValueShape::Integer && shape <= ValueShape::ComplexNumber;
}

}  // namespace textimport::analysis
