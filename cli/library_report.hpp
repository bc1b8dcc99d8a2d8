// SPDX-License-Identifier: MIT
//
// The library's own answer for people.
#pragma once

#include <string>

#include "cli/answer.hpp"
#include "cli/preview.hpp"
#include "cli/settings.hpp"

namespace cli {

/// What is known, line by line.
[[nodiscard]] std::string library_facts(Answer const& answer, Settings const& settings,
                                        Preview const& preview);

}  // namespace cli
