// SPDX-License-Identifier: MIT
//
// The commands. Each returns the exit code and throws UsageError, OutputError or ClosedPipe.
#pragma once

#include "cli/arguments.hpp"

namespace cli {

/// How each file is laid out.
[[nodiscard]] int detect(Arguments const& arguments);

/// How that was decided.
[[nodiscard]] int explain(Arguments const& arguments);

/// The man page, completions, or the table of options.
[[nodiscard]] int generate(Arguments const& arguments);

/// The help text, whichever command it is asked about.
[[nodiscard]] int help(Arguments const& arguments);

}  // namespace cli
