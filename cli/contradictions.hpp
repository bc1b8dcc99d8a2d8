// SPDX-License-Identifier: MIT
//
// Options that cannot all be met.
#pragma once

#include "cli/arguments.hpp"
#include "text_import/format/request.hpp"

namespace cli {

/// Throws UsageError when options contradict each other, or stand with a command that does not know
/// them; the message names both and what to do. `request` is what they amount to.
void check_contradictions(Arguments const& arguments, textimport::Request const& request);

}  // namespace cli
