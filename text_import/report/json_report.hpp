// SPDX-License-Identifier: MIT
//
// The answer for programs: one JSON object a line, everything beyond ASCII escaped, as
// docs/format.schema.json describes it.
#pragma once

#include <string>

#include "text_import/analysis/analysis.hpp"
#include "text_import/export.hpp"
#include "text_import/import_error.hpp"
#include "text_import/report/style.hpp"

namespace textimport {

/// The Format, how sure it is, and the evidence in short. Ends with a line feed.
[[nodiscard]] TEXT_IMPORT_API std::string report_json(Analysis const& analysis,
                                                      ReportSubject const& subject);

/// The same with all the evidence: hypotheses, readings, rules, the engine's own decision.
[[nodiscard]] TEXT_IMPORT_API std::string explanation_json(Analysis const& analysis,
                                                           ReportSubject const& subject);

/// A file that could not be read.
[[nodiscard]] TEXT_IMPORT_API std::string error_json(std::string const& path,
                                                     ImportError const& error);

}  // namespace textimport
