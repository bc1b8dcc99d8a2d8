// SPDX-License-Identifier: MIT
//
// From the survey's findings to the answer of the command.
#pragma once

#include "cli/answer.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Surveys the sample of the answer and fills in what follows from that.
void take_survey(Answer& answer, Settings const& settings);

/// Whether the user says how values are written, so that the library's types for the answer count,
/// which go by that, and not the survey's.
[[nodiscard]] bool types_are_bound(Settings const& settings);

}  // namespace cli
