// SPDX-License-Identifier: MIT
//
// The lines that hold no data, with what they are.
#pragma once

#include "text_import/analysis/analysis.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

/// The lines above and below the data, each with its number, its role and its text. In the middle
/// of a long list some are left out.
void add_noted_lines(FactLines& facts, Analysis const& analysis);

}  // namespace textimport::reporting
