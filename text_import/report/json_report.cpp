// SPDX-License-Identifier: MIT

#include "text_import/report/json_report.hpp"

#include "text_import/format/json_values_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/engine_json_internal.hpp"

namespace textimport {

namespace {

/// "schema" and the path; where that is no UTF-8 its bytes in hexadecimal too, so that it is not
/// lost.
Json object_about(std::string const& path) {
  Json object{{"schema", json_schema}, {"path", path}};  // bad bytes are replaced when written
  if (!from_utf8(path)) {
    object["path_bytes"] = hexadecimal(path);
  }
  return object;
}

Json certainty_object(Certainty const& certainty) {
  return {{"layout", json_value(certainty.layout)},
          {"table", json_value(certainty.table)},
          {"columns", json_value(certainty.columns)}};
}

Json delimiter_of(Candidate const& candidate) {
  return candidate.layout == Layout::Delimited ? json_value(candidate.delimiter) : Json();
}

Json runner_up_object(Evidence const& evidence) {
  if (!evidence.runner_up) {
    return nullptr;
  }
  Candidate const& candidate = evidence.candidates[evidence.runner_up->candidate];
  return {{"layout", word_of(candidate.layout)},
          {"delimiter", delimiter_of(candidate)},
          {"num_columns", candidate.num_columns},
          {"certainty", json_value(evidence.runner_up->certainty)}};
}

Json noted_lines(Evidence const& evidence) {
  Json array = Json::array();
  for (auto const& [line, role] : evidence.lines) {
    array.push_back({{"line", line}, {"role", word_of(role)}});
  }
  return array;
}

Json column_counts(Evidence const& evidence) {
  Json array = Json::array();
  for (ColumnEvidence const& column : evidence.columns) {
    array.push_back({{"values", column.values},
                     {"fitting", column.fitting},
                     {"empty", column.empty},
                     {"longest_value", column.longest_value}});
  }
  return array;
}

Json evidence_object(Analysis const& analysis, ReportSubject const& subject) {
  Evidence const& evidence = analysis.evidence;
  std::string const& reason = subject.encoding_reason;
  return {{"lines_seen", evidence.lines_seen},
          {"records_sampled", evidence.records_sampled},
          {"goes_on", evidence.goes_on},
          {"encoding_reason", reason.empty() ? Json() : Json(reason)},
          {"lines", noted_lines(evidence)},
          {"columns", column_counts(evidence)},
          {"runner_up", runner_up_object(evidence)},
          {"units_left_over", evidence.units_left_over},
          {"repeated_names", json_value(evidence.repeated_names)},
          {"engine", analysis.engine ? engine_answer(*analysis.engine) : Json()}};
}

Json violation_object(std::optional<Violation> const& violation) {
  if (!violation) {
    return nullptr;
  }
  auto const& [offset, line, column] = violation->position;
  return {
      {"rule", word_of(violation->rule)}, {"offset", offset}, {"line", line}, {"column", column}};
}

Json report_object(Analysis const& analysis, ReportSubject const& subject) {
  Json object = object_about(subject.path);
  object["decided"] = analysis.decided;
  object["reason"] = word_of(analysis.reason);
  object["certainty"] = certainty_object(analysis.certainty);
  object["num_columns"] = analysis.format.columns.size();
  object["format"] = format_object(analysis.format);
  object["evidence"] = evidence_object(analysis, subject);
  object["violation"] = violation_object(analysis.violation);
  object["warnings"] = subject.notes;
  return object;
}

Json hypotheses(Evidence const& evidence) {
  Json array = Json::array();
  for (Hypothesis const& hypothesis : evidence.hypotheses) {
    array.push_back({{"quotes_are_ordinary", hypothesis.quotes_are_ordinary},
                     {"apostrophes_quote", hypothesis.apostrophes_quote},
                     {"comment_markers", json_value(hypothesis.comment_markers)}});
  }
  return array;
}

Json rules(Evidence const& evidence) {
  Json array = Json::array();
  for (RuleText const& rule : evidence.rules) {
    array.push_back({{"name", rule.name}, {"meaning", rule.meaning}});
  }
  return array;
}

Json candidates(Evidence const& evidence) {
  Json array = Json::array();
  for (Candidate const& candidate : evidence.candidates) {
    array.push_back({{"hypothesis", candidate.hypothesis},
                     {"layout", word_of(candidate.layout)},
                     {"delimiter", delimiter_of(candidate)},
                     {"num_columns", candidate.num_columns},
                     {"coverage", json_value(candidate.coverage)},
                     {"soundness", json_value(candidate.soundness)},
                     {"rule", json_value(candidate.rule)},
                     {"measure", candidate.rule ? json_value(candidate.measure) : Json()}});
  }
  return array;
}

Json explanation_object(Analysis const& analysis) {
  Evidence const& evidence = analysis.evidence;
  return {{"hypotheses", hypotheses(evidence)},
          {"rules", rules(evidence)},
          {"candidates", candidates(evidence)},
          {"winner", json_value(evidence.winner)},
          {"engine", analysis.engine ? engine_story(analysis.lines.text(), *analysis.engine) : Json()}};
}

}  // namespace

std::string report_json(Analysis const& analysis, ReportSubject const& subject) {
  return compact_text(report_object(analysis, subject)) + '\n';
}

std::string explanation_json(Analysis const& analysis, ReportSubject const& subject) {
  Json object = report_object(analysis, subject);
  object["explanation"] = explanation_object(analysis);
  return compact_text(object) + '\n';
}

std::string error_json(std::string const& path, ImportError const& error) {
  Json object = object_about(path);
  object["decided"] = false;
  object["error"] = name_of(error.kind());
  object["message"] = error.message();
  object["byte_offset"] = json_value(error.byte_offset());
  return compact_text(object) + '\n';
}

}  // namespace textimport
