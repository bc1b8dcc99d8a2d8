// SPDX-License-Identifier: MIT
//
// What stands above a report and its chapters.
#pragma once

#include <string>
#include <string_view>

#include "text_import/report/style.hpp"

namespace textimport::reporting {

/// The path, or what standard input is called. The one line that is never broken or cut, however
/// long it is.
[[nodiscard]] std::string title_line(ReportSubject const& subject, Colors const& colors);

/// The head of a chapter, behind an empty line.
[[nodiscard]] std::string heading(std::string_view text, ReportStyle const& style);

/// Text in lines that begin with `left` blanks.
[[nodiscard]] std::string paragraph(std::string_view text, std::size_t width, std::size_t left = 4);

}  // namespace textimport::reporting
