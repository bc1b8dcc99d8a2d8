// SPDX-License-Identifier: MIT
#include "text_import/report/headings_internal.hpp"

#include <fmt/format.h>

#include "text_import/import_error.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

std::string title_line(ReportSubject const& subject, Colors const& colors) {
  return fmt::format("{}{}{}\n", colors.heading, display_bytes(display_name(subject.path)).utf8,
                     colors.reset);
}

std::string heading(std::string_view const text, ReportStyle const& style) {
  std::string lines = wrapped(text, 0, style.width);
  lines.pop_back();
  return fmt::format("\n{}{}{}\n", style.colors.heading, lines, style.colors.reset);
}

std::string paragraph(std::string_view const text, std::size_t const width,
                      std::size_t const left) {
  return std::string(left, ' ') + wrapped(text, left, width);
}

}  // namespace textimport::reporting
