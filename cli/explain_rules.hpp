// SPDX-License-Identifier: MIT
//
// The rules of a decision, for people: who stayed and who fell, and by what number.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.hpp"
#include "text_format_detection/detection/detection_report.hpp"

namespace cli {

/// A number of a score: without needless decimals, and a word where there is none.
[[nodiscard]] std::string number_text(double number);

/// Text in lines that begin with `left` blanks.
[[nodiscard]] std::string paragraph(std::string_view text, std::size_t width, std::size_t left = 4);

/// The head of a chapter, behind an empty line.
[[nodiscard]] std::string heading(std::string_view text, Colors const& colors);

/// "  2. dates: any columns of dates and times", in lines of `width` cells.
[[nodiscard]] std::string rule_heading(std::size_t number, std::string_view rule,
                                       std::string_view meaning, std::size_t width);

/// A reading by its position in the list, from 0, with the number that a rule saw.
struct NumberedReading {
  std::size_t position = 0;
  std::string name;
  double number = 0;
};

/// "#3 comma: 0.5, #4 tab: 1"; more than a few are grouped by their numbers.
[[nodiscard]] std::string numbered_list(std::vector<NumberedReading> readings);

/// Every rule that ran, in lines of `width` cells.
[[nodiscard]] std::string rules_text(textio::detection::DetectionReport const& report,
                                     std::size_t width);

}  // namespace cli
