// SPDX-License-Identifier: MIT
//
// Listings such as those of files and processes: blanks part the columns, and the last one is a
// text that holds blanks itself.
#pragma once

#include <cstddef>

#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// How many fields the lines up to, not including, `end` have when the last is the rest of the
/// line; 0 when nothing speaks for that.
[[nodiscard]] std::size_t fields_before_rest(LineIndex const& lines, std::size_t end);

}  // namespace textimport::analysis
