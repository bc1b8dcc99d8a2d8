// SPDX-License-Identifier: MIT
//
// Why the answer is what it is, in a sentence.
#pragma once

#include <string>

#include "cli/answer.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Of the answer.
[[nodiscard]] std::string why(Answer const& answer, Settings const& settings);

/// Of the library's own answer, which is there.
[[nodiscard]] std::string why_library(Answer const& answer, Settings const& settings);

}  // namespace cli
