// SPDX-License-Identifier: MIT
//
// Options that cannot all be met.
#pragma once

#include <optional>

#include "cli/arguments.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Throws usage_error when options contradict each other; the message names both and what to do.
void check_contradictions(Arguments const& arguments, Settings const& settings);

/// The layout that the options amount to: the one that is named, or the one that delimiters or
/// widths imply.
[[nodiscard]] std::optional<textio::enums::StrategyMode> implied_layout(Settings const& settings);

}  // namespace cli
