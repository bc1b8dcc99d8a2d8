// SPDX-License-Identifier: MIT
//
// The survey's part of the story, for people.
#pragma once

#include <string>

#include "cli/answer.hpp"
#include "cli/console.hpp"
#include "cli/settings.hpp"

namespace cli {

/// The answer in short, and how sure it is.
[[nodiscard]] std::string survey_summary(Answer const& answer, Settings const& settings);

/// What was assumed, every reading that was weighed, and the rules at which they fell.
[[nodiscard]] std::string survey_story(Answer const& answer, Settings const& settings,
                                       Colors const& colors);

}  // namespace cli
