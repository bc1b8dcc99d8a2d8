// SPDX-License-Identifier: MIT
//
// The columns of a table, one a line, with what a reader of the file has to know about each.
#pragma once

#include "cli/answer.hpp"
#include "cli/lines.hpp"
#include "cli/settings.hpp"

namespace cli {

/// The number of columns and the list of them. In a wide table neighbours that are alike share a
/// line.
void add_columns(FactLines& lines, Answer const& answer, Settings const& settings);

}  // namespace cli
