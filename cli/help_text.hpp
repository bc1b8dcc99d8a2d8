// SPDX-License-Identifier: MIT
//
// The help text, which is the reference of the command line, and the two short ones.
#pragma once

#include <string>

namespace cli {

/// Every command and option, from their table.
[[nodiscard]] std::string help_text();

/// What to type, for someone who typed nothing.
[[nodiscard]] std::string short_help();

[[nodiscard]] std::string version_text();

}  // namespace cli
