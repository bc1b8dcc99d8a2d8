// SPDX-License-Identifier: MIT

#include "text_import/report/json_report.hpp"

#include <optional>
#include <string_view>
#include <utility>

#include "text_import/format/json_values_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/engine_json_internal.hpp"

namespace textimport {

namespace {

/// "schema" and the path; where that is no UTF-8 its bytes in hexadecimal too, so that it is not
/// lost. Leaves the object open.
void begin_object_about(JsonWriter& writer, std::string const& path) {
  writer.begin_object();
  write_member(writer, "schema", json_schema);
  write_member(writer, "path", std::string_view(path));
  if (!from_utf8(path)) {
    write_member(writer, "path_bytes", std::string_view(hexadecimal(path)));
  }
}

std::string finished_line(JsonWriter&& writer) {
  return std::move(writer).take() + '\n';
}

void write_certainty(JsonWriter& writer, Certainty const& certainty) {
  writer.begin_object();
  write_member(writer, "layout", certainty.layout);
  write_member(writer, "table", certainty.table);
  write_member(writer, "columns", certainty.columns);
  writer.end_object();
}

void write_delimiter(JsonWriter& writer, Candidate const& candidate) {
  writer.key("delimiter");
  if (candidate.layout == Layout::Delimited) {
    write_value(writer, candidate.delimiter);
  } else {
    writer.value(nullptr);
  }
}

void write_noted_line(JsonWriter& writer, NotedLine const& noted) {
  writer.begin_object();
  write_member(writer, "line", noted.line);
  write_member(writer, "role", noted.role);
  writer.end_object();
}

void write_column_counts(JsonWriter& writer, ColumnEvidence const& column) {
  writer.begin_object();
  write_member(writer, "values", column.values);
  write_member(writer, "fitting", column.fitting);
  write_member(writer, "empty", column.empty);
  write_member(writer, "longest_value", column.longest_value);
  write_member(writer, "open_marks", column.open_marks);
  write_member(writer, "other_marks", column.other_marks);
  writer.end_object();
}

void write_runner_up(JsonWriter& writer, Evidence const& evidence) {
  if (!evidence.runner_up) {
    writer.value(nullptr);
    return;
  }
  Candidate const& candidate = evidence.candidates[evidence.runner_up->candidate];
  writer.begin_object();
  write_member(writer, "layout", candidate.layout);
  write_delimiter(writer, candidate);
  write_member(writer, "num_columns", candidate.num_columns);
  write_member(writer, "certainty", evidence.runner_up->certainty);
  writer.end_object();
}

void write_evidence(JsonWriter& writer, Analysis const& analysis, ReportSubject const& subject) {
  Evidence const& evidence = analysis.evidence;
  std::string_view const reason = subject.encoding_reason;
  writer.begin_object();
  write_member(writer, "lines_seen", evidence.lines_seen);
  write_member(writer, "records_sampled", evidence.records_sampled);
  write_member(writer, "goes_on", evidence.goes_on);
  write_member(writer, "encoding_reason", reason.empty() ? std::nullopt : std::optional(reason));
  writer.key("lines");
  write_list(writer, evidence.lines, write_noted_line);
  writer.key("columns");
  write_list(writer, evidence.columns, write_column_counts);
  writer.key("runner_up");
  write_runner_up(writer, evidence);
  write_member(writer, "units_left_over", evidence.units_left_over);
  write_member(writer, "repeated_names", evidence.repeated_names);
  write_member(writer, "open_parts", evidence.open_parts);
  writer.key("engine");
  if (analysis.engine) {
    write_engine_answer(writer, *analysis.engine);
  } else {
    writer.value(nullptr);
  }
  writer.end_object();
}

void write_violation(JsonWriter& writer, std::optional<Violation> const& violation) {
  if (!violation) {
    writer.value(nullptr);
    return;
  }
  writer.begin_object();
  write_member(writer, "rule", violation->rule);
  write_member(writer, "offset", violation->position.offset);
  write_member(writer, "line", violation->position.line);
  write_member(writer, "column", violation->position.column);
  writer.end_object();
}

void write_warning(JsonWriter& writer, std::string_view const sentence) {
  writer.value(sentence);
}

/// Leaves the object open.
void begin_report(JsonWriter& writer, Analysis const& analysis, ReportSubject const& subject) {
  begin_object_about(writer, subject.path);
  write_member(writer, "decided", analysis.decided);
  write_member(writer, "table_decided", analysis.table_decided);
  write_member(writer, "reason", analysis.reason);
  writer.key("certainty");
  write_certainty(writer, analysis.certainty);
  write_member(writer, "num_columns", analysis.format.columns.size());
  writer.key("format");
  write_format(writer, analysis.format);
  writer.key("evidence");
  write_evidence(writer, analysis, subject);
  writer.key("violation");
  write_violation(writer, analysis.violation);
  writer.key("warnings");
  write_list(writer, subject.notes, write_warning);
}

void write_hypothesis(JsonWriter& writer, Hypothesis const& hypothesis) {
  writer.begin_object();
  write_member(writer, "quotes_are_ordinary", hypothesis.quotes_are_ordinary);
  write_member(writer, "quote", hypothesis.quote);
  write_member(writer, "comment_markers", hypothesis.comment_markers);
  LineSyntax const& syntax = hypothesis.syntax;
  write_member(writer, "outer_bars", syntax.has_outer_bars);
  write_member(writer, "rulers", syntax.has_rulers);
  write_member(writer, "escape", syntax.escape);
  write_member(writer, "comments_at_line_ends", syntax.has_end_comments);
  write_member(writer, "quotes_behind_blanks", syntax.quotes_behind_blanks);
  write_member(writer, "rest_of_line", syntax.rest_of_line);
  writer.end_object();
}

void write_measure(JsonWriter& writer, MeasureText const& measure) {
  writer.begin_object();
  write_member(writer, "name", measure.name);
  write_member(writer, "meaning", measure.meaning);
  writer.end_object();
}

void write_piece(JsonWriter& writer, ScorePiece const& piece) {
  writer.begin_object();
  write_member(writer, "measure", piece.measure);
  write_member(writer, "value", piece.value);
  write_member(writer, "amount", piece.amount);
  writer.end_object();
}

void write_candidate(JsonWriter& writer, Candidate const& candidate) {
  writer.begin_object();
  write_member(writer, "hypothesis", candidate.hypothesis);
  write_member(writer, "layout", candidate.layout);
  write_delimiter(writer, candidate);
  write_member(writer, "num_columns", candidate.num_columns);
  write_member(writer, "coverage", candidate.coverage);
  write_member(writer, "soundness", candidate.soundness);
  write_member(writer, "score", candidate.is_table ? std::optional(candidate.score) : std::nullopt);
  write_member(writer, "share", candidate.share);
  writer.key("pieces");
  write_list(writer, candidate.pieces, write_piece);
  writer.end_object();
}

void write_explanation(JsonWriter& writer, Analysis const& analysis) {
  Evidence const& evidence = analysis.evidence;
  writer.begin_object();
  writer.key("hypotheses");
  write_list(writer, evidence.hypotheses, write_hypothesis);
  writer.key("measures");
  write_list(writer, evidence.measures, write_measure);
  writer.key("candidates");
  write_list(writer, evidence.candidates, write_candidate);
  write_member(writer, "winner", evidence.winner);
  writer.key("engine");
  if (analysis.engine) {
    write_engine_story(writer, analysis.lines.text(), *analysis.engine);
  } else {
    writer.value(nullptr);
  }
  writer.end_object();
}

}  // namespace

std::string report_json(Analysis const& analysis, ReportSubject const& subject) {
  JsonWriter writer;
  begin_report(writer, analysis, subject);
  writer.end_object();
  return finished_line(std::move(writer));
}

std::string explanation_json(Analysis const& analysis, ReportSubject const& subject) {
  JsonWriter writer;
  begin_report(writer, analysis, subject);
  writer.key("explanation");
  write_explanation(writer, analysis);
  writer.end_object();
  return finished_line(std::move(writer));
}

std::string error_json(std::string const& path, ImportError const& error) {
  JsonWriter writer;
  begin_object_about(writer, path);
  write_member(writer, "decided", false);
  write_member(writer, "error", std::string_view(name_of(error.kind())));
  write_member(writer, "message", std::string_view(error.message()));
  write_member(writer, "byte_offset", error.byte_offset());
  writer.end_object();
  return finished_line(std::move(writer));
}

}  // namespace textimport
