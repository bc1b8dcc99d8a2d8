// SPDX-License-Identifier: MIT
//
// The order of day, month and year in a column of dates: only what fits every value is left.
#pragma once

#include <string_view>

#include "text_import/format/column.hpp"

namespace textimport::analysis {

class DateOrderEvidence {
 public:
  /// Takes note of one date, blanks and quotes taken off.
  void add(std::u16string_view date) noexcept;

  [[nodiscard]] DateOrder order() const noexcept;

 private:
  bool is_numeric_ = false;  ///< a value without a month's name was met
  bool year_is_first_ = false;
  bool day_is_first_ = false;    ///< a first number above 12
  bool month_is_first_ = false;  ///< a second number above 12
};

}  // namespace textimport::analysis
