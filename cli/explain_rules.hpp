// SPDX-License-Identifier: MIT
//
// The rules of a decision, for people: who stayed and who fell, and by what number.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text_format_detection/detection/detection_report.hpp"

namespace cli {

/// A number of a score: without needless decimals, and a word where there is none.
[[nodiscard]] std::string number_text(double number);

/// Text in lines that begin with `left` blanks.
[[nodiscard]] std::string paragraph(std::string_view text, std::size_t width, std::size_t left = 4);

/// Every rule that ran, in lines of `width` cells.
[[nodiscard]] std::string rules_text(textio::detection::DetectionReport const& report,
                                     std::size_t width);

}  // namespace cli
