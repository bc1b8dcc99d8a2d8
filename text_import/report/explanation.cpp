// SPDX-License-Identifier: MIT
//
// The story of an answer: in short, then how the readings were weighed, then the engine's part.
#include <fmt/format.h>

#include "text_import/report/answer_facts_internal.hpp"
#include "text_import/report/engine_story_internal.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/noted_lines_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/reasons_internal.hpp"
#include "text_import/report/report.hpp"
#include "text_import/report/weighing_story_internal.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport {

namespace {

std::string answer_text(Analysis const& analysis) {
  Format const& format = analysis.format;
  std::string const reading = fmt::format(
      "{}, {}, data from line {} on", reporting::reading_name(format.layout),
      reporting::counted(format.columns.size(), "column"), format.region.first_line + 1);
  return analysis.decided ? reading : "not decided; read as " + reading;
}

}  // namespace

std::string explanation(Analysis const& analysis, ReportSubject const& subject,
                        ReportStyle const& style) {
  FactLines facts(style.width);
  facts.add("answer", answer_text(analysis));
  reporting::add_confidence(facts, analysis);
  reporting::add_open_parts(facts, analysis);
  facts.add("why", reporting::why(analysis));
  std::string text = reporting::title_line(subject, style.colors) + facts.text();
  if (analysis.reason != Reason::EngineDecided) {
    text += reporting::weighing_story(analysis.evidence, style);
  }
  text += reporting::line_story(analysis.evidence, style);
  if (analysis.engine) {
    text += reporting::engine_story(analysis.lines.text(), *analysis.engine, style);
  }
  return text;
}

}  // namespace textimport
