// SPDX-License-Identifier: MIT
//
// The first rows of the data as a table.
#pragma once

#include <string>

#include "text_import/analysis/analysis.hpp"
#include "text_import/report/style.hpp"

namespace textimport::reporting {

/// The rows under the names of their columns, or under the types where there are no names; those of
/// fixed-width columns under a ruler. Empty when there are no data.
[[nodiscard]] std::string first_rows(Analysis const& analysis, ReportStyle const& style);

}  // namespace textimport::reporting
