// SPDX-License-Identifier: MIT
//
// The characters that the engine did not try as delimiters, and why, for people.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/detection/untried_characters.hpp"

namespace textimport::reporting {

/// A paragraph for each reason, in lines of `width` cells.
[[nodiscard]] std::string untried_text(
    std::vector<textio::detection::UntriedCharacter> const& untried, std::size_t width);

}  // namespace textimport::reporting
