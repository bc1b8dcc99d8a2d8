// SPDX-License-Identifier: MIT
//
// The lines that hold no data, with what they are.
#pragma once

#include <string>

#include "text_import/analysis/analysis.hpp"
#include "text_import/report/style.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

/// The lines above and below the data and the groups and totals between, each with its number, its
/// role and its text. In the middle of a long list some are left out.
void add_noted_lines(FactLines& facts, Analysis const& analysis);

/// Why the lines around the data are what they are: a chapter of its own, empty where no line was
/// weighed.
[[nodiscard]] std::string line_story(Evidence const& evidence, ReportStyle const& style);

}  // namespace textimport::reporting
