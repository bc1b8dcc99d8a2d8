// SPDX-License-Identifier: MIT
//
// The answer itself: how the lines are split, how sure that is, and why.
#pragma once

#include <string_view>

#include "text_import/analysis/analysis.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

/// The layout, the delimiter or the widths, and the marks and rules that are not the usual ones.
void add_layout(FactLines& facts, Analysis const& analysis);

/// How sure the answer is; nothing where that was not weighed.
void add_confidence(FactLines& facts, Analysis const& analysis);

/// The parts of the table that are not decided; nothing where the layout is not.
void add_open_parts(FactLines& facts, Analysis const& analysis);

/// What else the text may be, for someone who has to decide; nothing for an answer that is decided.
void add_candidates(FactLines& facts, Analysis const& analysis);

/// " (given)" for a part that is.
[[nodiscard]] std::string_view given_mark(Origin origin);

}  // namespace textimport::reporting
