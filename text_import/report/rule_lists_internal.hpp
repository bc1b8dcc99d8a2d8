// SPDX-License-Identifier: MIT
//
// Rules, and lists of the readings that they saw.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace textimport::reporting {

/// "  2. dates: any columns of dates and times", in lines of `width` cells.
[[nodiscard]] std::string rule_heading(std::size_t number, std::string_view rule,
                                       std::string_view meaning, std::size_t width);

/// A reading by its position in the list, from 0, with the number that a rule saw.
struct NumberedReading {
  std::size_t position = 0;
  std::string name;
  double number = 0;
  std::string shown;  ///< the number as it is shown
};

/// "#3 comma: 0.5, #4 tab: 1"; more than a few are grouped by their numbers.
[[nodiscard]] std::string numbered_list(std::vector<NumberedReading> readings);

}  // namespace textimport::reporting
