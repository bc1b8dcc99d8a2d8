// SPDX-License-Identifier: MIT
//
// The answer for people.
#pragma once

#include <string>

#include "text_import/analysis/analysis.hpp"
#include "text_import/export.hpp"
#include "text_import/report/style.hpp"

namespace textimport {

/// The answer, the first rows, the lines around the data, the columns, and the notes. Ends with a
/// line feed.
[[nodiscard]] TEXT_IMPORT_API std::string report(Analysis const& analysis,
                                                 ReportSubject const& subject,
                                                 ReportStyle const& style);

/// The answer in one line: path, layout, delimiter or widths, first line of the data, columns,
/// encoding and confidence, apart by tabs. Ends with a line feed.
[[nodiscard]] TEXT_IMPORT_API std::string report_line(Analysis const& analysis,
                                                      ReportSubject const& subject);

/// How the answer came about. Ends with a line feed.
[[nodiscard]] TEXT_IMPORT_API std::string explanation(Analysis const& analysis,
                                                      ReportSubject const& subject,
                                                      ReportStyle const& style);

}  // namespace textimport
