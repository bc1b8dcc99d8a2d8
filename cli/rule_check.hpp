// SPDX-License-Identifier: MIT
//
// The rules that the user set to "error", tried on the sample: detection itself never stops at a
// line that breaks them.
#pragma once

#include <optional>

#include "cli/answer.hpp"
#include "cli/settings.hpp"

namespace cli {

/// The first record of the sample that breaks a rule, if any does.
[[nodiscard]] std::optional<Violation> find_violation(Answer const& answer,
                                                      Settings const& settings);

}  // namespace cli
