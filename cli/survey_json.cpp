// SPDX-License-Identifier: MIT

#include "cli/survey_json.hpp"

#include <optional>

#include <nlohmann/json.hpp>

#include "text_import/format/utf.hpp"

namespace cli {

namespace {

using nlohmann::ordered_json;
using textimport::ColumnFindings;
using textimport::SurveyCandidate;
using textimport::SurveyFindings;
using textimport::Layout;

ordered_json mark(char16_t const c) {
  return c == 0 || c == textio::end_mark ? ordered_json()
                                         : ordered_json(to_utf8(std::u16string(1, c)));
}

template <class T>
ordered_json or_null(std::optional<T> const& value) {
  return value ? ordered_json(*value) : ordered_json();
}

ordered_json texts(std::vector<std::u16string> const& list) {
  ordered_json array = ordered_json::array();
  for (std::u16string const& text : list) {
    array.push_back(to_utf8(text));
  }
  return array;
}

ordered_json extent(std::optional<textimport::ColumnExtent> const& place) {
  return place ? ordered_json{{"begin", place->begin}, {"end", place->end}} : ordered_json();
}

ordered_json column_object(ColumnFindings const& column) {
  return {{"name", to_utf8(column.name)},
          {"type", textimport::name_of(column.type)},
          {"values", column.values},
          {"fitting", column.fitting},
          {"empty", column.empty},
          {"missing_words", texts(column.missing_words)},
          {"decimal_mark", mark(column.decimal_mark)},
          {"thousands_mark", mark(column.thousands_mark)},
          {"order", textimport::name_of(column.order)},
          {"leading_zeros", column.leading_zeros},
          {"quoted", column.quoted},
          {"longest_value", column.longest_value},
          {"characters", extent(column.characters)},
          {"bytes", extent(column.bytes)}};
}

ordered_json delimiter(SurveyCandidate const& candidate) {
  return candidate.layout == Layout::Delimited ? ordered_json(to_utf8(candidate.delimiter))
                                                     : ordered_json();
}

ordered_json runner_up_object(SurveyFindings const& findings) {
  if (!findings.runner_up) {
    return nullptr;
  }
  SurveyCandidate const& candidate = findings.candidates[*findings.runner_up];
  return {{"layout", textimport::name_of(candidate.layout)},
          {"delimiter", delimiter(candidate)},
          {"num_columns", candidate.num_columns},
          {"confidence", findings.runner_up_confidence}};
}

ordered_json candidate_object(SurveyCandidate const& candidate) {
  ordered_json object{{"hypothesis", candidate.hypothesis},
                      {"layout", textimport::name_of(candidate.layout)},
                      {"delimiter", delimiter(candidate)},
                      {"num_columns", candidate.num_columns},
                      {"coverage", candidate.coverage},
                      {"soundness", candidate.soundness},
                      {"fell_at", nullptr},
                      {"measure", nullptr}};
  if (!candidate.fell_at.empty()) {
    object["fell_at"] = candidate.fell_at;
    object["measure"] = candidate.measure;
  }
  return object;
}

}  // namespace

void add_survey(ordered_json& object, Answer const& answer) {
  SurveyFindings const& findings = *answer.survey;
  object["confidence"] = findings.confidence;
  object["runner_up"] = runner_up_object(findings);
  object["data_starts_at"] = findings.data_starts_at;
  object["data_ends_at"] = or_null(findings.data_ends_at);
  object["has_names"] = findings.has_names;
  object["names"] = ordered_json::array();
  object["lines"] = ordered_json::array();
  object["columns"] = ordered_json::array();
  for (textimport::NotedLine const& line : findings.lines) {
    object["lines"].push_back({{"line", line.line}, {"role", textimport::name_of(line.role)}});
  }
  if (!answer.column_types.empty()) {
    for (ColumnFindings const& column : findings.columns) {
      object["columns"].push_back(column_object(column));
      if (findings.has_names) {
        object["names"].push_back(to_utf8(column.name));
      }
    }
  }
  object["quote"] = mark(findings.quote);
  object["comment_markers"] = texts(findings.comment_style);
  object["decimal_mark"] = mark(findings.decimal_mark);
}

void add_weighing(ordered_json& object, SurveyFindings const& findings) {
  object["candidates"] = ordered_json::array();
  for (SurveyCandidate const& candidate : findings.candidates) {
    object["candidates"].push_back(candidate_object(candidate));
  }
  object["survey"] = {{"reason", findings.reason},
                      {"winner", or_null(findings.winner)},
                      {"runner_up", or_null(findings.runner_up)}};
}

}  // namespace cli
