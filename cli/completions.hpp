// SPDX-License-Identifier: MIT
//
// Completions of the command line for three shells, made from the table of options.
#pragma once

#include <string>

namespace cli {

[[nodiscard]] std::string bash_completion();
[[nodiscard]] std::string zsh_completion();
[[nodiscard]] std::string fish_completion();

}  // namespace cli
