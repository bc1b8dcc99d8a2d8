// SPDX-License-Identifier: MIT
//
// The survey's answer for people.
#pragma once

#include <string>

#include "cli/answer.hpp"
#include "cli/lines.hpp"
#include "cli/preview.hpp"
#include "cli/settings.hpp"

namespace cli {

/// What is known, line by line: the layout, how sure that is, where the data stand and what stands
/// around them, the columns.
[[nodiscard]] std::string survey_facts(Answer const& answer, Settings const& settings,
                                       Preview const& preview);

/// How sure the answer is, and the runner-up; nothing for one that is given.
void add_confidence(FactLines& lines, Answer const& answer);

}  // namespace cli
