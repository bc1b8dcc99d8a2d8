// SPDX-License-Identifier: MIT
//
// The columns of a table, one a line, with what a reader of the file has to know about each.
#pragma once

#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

/// The number of columns and the list of them. In a wide table neighbours that are alike share a
/// line.
void add_columns(FactLines& facts, Format const& format, Evidence const& evidence,
                 Certainty const& certainty);

}  // namespace textimport::reporting
