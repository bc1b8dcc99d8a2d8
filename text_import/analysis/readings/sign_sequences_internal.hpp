// SPDX-License-Identifier: MIT
//
// Sequences of signs that recur: one to three signs that nearly every line of a text holds equally
// often delimit its columns, whichever signs they are.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"

namespace textimport::analysis {

/// The sequences, those that make most columns first; at most four. Single signs of ASCII are left
/// to the engine. Of sequences that overlap the longest stands for all, unless a part of it stands
/// elsewhere too and recurs by itself. Looks at the head of the text, in linear time.
[[nodiscard]] std::vector<std::u16string> recurring_signs(LineIndex const& lines);

}  // namespace textimport::analysis
