// SPDX-License-Identifier: MIT
//
// The answer of `detect` for people.
#pragma once

#include <string>
#include <vector>

#include "cli/answer.hpp"
#include "cli/console.hpp"
#include "cli/settings.hpp"

namespace cli {

/// What is known about the file, the header lines and the first rows; ends with a line feed.
[[nodiscard]] std::string report(Answer const& answer, Settings const& settings,
                                 Colors const& colors);

/// What the user should know about the text beside the answer: damage, replaced bytes.
[[nodiscard]] std::vector<std::string> notes(Answer const& answer);

/// The column types with their positions, runs of equal ones taken together: "1-3 number, 4 text".
[[nodiscard]] std::string type_runs(std::vector<textio::enums::ColumnType> const& types);

}  // namespace cli
