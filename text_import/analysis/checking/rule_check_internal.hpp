// SPDX-License-Identifier: MIT
//
// The rules that the caller set to Error, tried on the data: the analysis itself never stops at a
// record that breaks them.
#pragma once

#include <cstddef>
#include <optional>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"

namespace textimport::analysis {

/// The first of the first `records` records of the data that breaks a rule, if any does. The data
/// are the lines of the Format's region. Linear; reads nothing when no rule is set to Error.
[[nodiscard]] std::optional<Violation> find_violation(Format const& format, LineIndex const& lines,
                                                      std::size_t records);

}  // namespace textimport::analysis
