// SPDX-License-Identifier: MIT
//
// The story of a decision, for people and as JSON.
#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "cli/answer.hpp"
#include "cli/console.hpp"
#include "cli/explanation.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Fits in lines of the width of the settings, however many candidates there are.
[[nodiscard]] std::string explain_report(Answer const& answer, Settings const& settings,
                                         Colors const& colors);

/// The members of `explain`.
[[nodiscard]] nlohmann::ordered_json explain_object(Answer const& answer, Settings const& settings);

}  // namespace cli
