// SPDX-License-Identifier: MIT
//
// Where the data begin and end, as rules that fit the next file of the kind: what such a rule finds
// in a text, and which rule says of this text what was found in it.
#pragma once

#include <cstddef>
#include <optional>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/format/format.hpp"

namespace textimport::analysis {

/// The first line of the data by the rule, at most the number of lines; empty when there is no line
/// like the one behind which they begin.
[[nodiscard]] std::optional<std::size_t> find_start(DataStart const& start, LineIndex const& lines);

/// The line behind the last of the data by the rule, which begin at `first`; empty when that cannot
/// be seen because the text goes on.
[[nodiscard]] std::optional<std::size_t> find_end(DataEnd const& end, LineIndex const& lines,
                                                  std::size_t first, bool goes_on);

/// Sets the rules of a region whose lines were found. `goes_on`: the data may not end in the text.
void derive_rules(Region& region, LineIndex const& lines, bool goes_on);

}  // namespace textimport::analysis
