// SPDX-License-Identifier: MIT
//
// One answer for each file of a call: in the order given, whatever happens to the others.
#pragma once

#include <functional>
#include <string>

#include "cli/answer.hpp"
#include "cli/arguments.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Makes what is printed about one file. `first` is true for the first that is printed.
using Renderer = std::function<std::string(Answer const& answer, bool first)>;

/// Finds the answer for each file and prints what `render` makes of it. Files that cannot be read
/// and broken rules are told on standard error, and the former as an object when JSON is asked for.
/// Returns the highest exit code. Throws output_error and closed_pipe.
[[nodiscard]] int answer_files(Arguments const& arguments, Settings const& settings,
                               Renderer const& render);

}  // namespace cli
