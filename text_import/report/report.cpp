// SPDX-License-Identifier: MIT
#include "text_import/report/report.hpp"

#include <vector>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/answer_facts_internal.hpp"
#include "text_import/report/column_list_internal.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/first_rows_internal.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/noted_lines_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/reasons_internal.hpp"
#include "text_import/report/text_facts_internal.hpp"

namespace textimport {

namespace {

/// The delimiters or the widths.
std::string splits_text(LayoutFormat const& layout) {
  switch (layout.layout) {
    case Layout::Delimited:
    case Layout::SpaceAligned:
      return reporting::reading_name(layout);
    case Layout::FixedWidth:
      return fmt::format("{}", fmt::join(layout.widths, ","));
    case Layout::Lines:
      break;
  }
  return "-";
}

}  // namespace

std::string report(Analysis const& analysis, ReportSubject const& subject,
                   ReportStyle const& style) {
  FactLines answer(style.width);
  reporting::add_layout(answer, analysis);
  reporting::add_confidence(answer, analysis);
  reporting::add_open_parts(answer, analysis);
  answer.add("why", reporting::why(analysis));
  reporting::add_candidates(answer, analysis);
  std::string const rows = reporting::first_rows(analysis, style);
  FactLines rest(style.width);
  reporting::add_data(rest, analysis);
  reporting::add_noted_lines(rest, analysis);
  reporting::add_columns(rest, analysis.format, analysis.evidence, analysis.certainty);
  reporting::add_text(rest, analysis, subject);
  reporting::add_notes(rest, analysis, subject);
  return reporting::title_line(subject, style.colors) + answer.text() +
         (rows.empty() ? "" : "\n" + rows + "\n") + rest.text();
}

std::string report_line(Analysis const& analysis, ReportSubject const& subject) {
  Format const& format = analysis.format;
  std::vector<std::string> const parts{
      display_bytes(subject.path).utf8,
      fmt::format("{}{}", analysis.decided ? "" : "undecided: ", word_of(format.layout.layout)),
      splits_text(format.layout),
      format.region.first_line < analysis.lines.count()
          ? fmt::format("{}", format.region.first_line + 1)
          : "-",
      fmt::format("{}", format.columns.size()),
      format.source.encoding.empty() ? "-" : display_bytes(format.source.encoding).utf8,
      reporting::share_text(analysis.certainty.layout)};
  return fmt::format("{}\n", fmt::join(parts, "\t"));
}

}  // namespace textimport
