// SPDX-License-Identifier: MIT
//
// The answer of `detect` for people.
#pragma once

#include <string>

#include "cli/answer.hpp"
#include "cli/console.hpp"
#include "cli/settings.hpp"

namespace cli {

/// What is known about the file, the lines around its data, its columns and the first rows; ends
/// with a line feed.
[[nodiscard]] std::string report(Answer const& answer, Settings const& settings,
                                 Colors const& colors);

}  // namespace cli
