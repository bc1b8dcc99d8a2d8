// SPDX-License-Identifier: MIT
//
// Where the data stand, what the text is, how much of it was looked at, and what else a reader
// should know.
#pragma once

#include "text_import/analysis/analysis.hpp"
#include "text_import/report/style.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

/// In lines counted from 1.
void add_data(FactLines& facts, Analysis const& analysis);

/// Encoding, line ends, compression; and how much of the text was looked at.
void add_text(FactLines& facts, Analysis const& analysis, ReportSubject const& subject);

void add_notes(FactLines& facts, Analysis const& analysis, ReportSubject const& subject);

}  // namespace textimport::reporting
