// SPDX-License-Identifier: MIT
//
// Answers cases from standard input, one JSON object a line, so that an outside model of the
// library can be compared with it. A text is a JSON string or an array of UTF-16 code units.
#include <iostream>
#include <string>

#include "tests/support/errors.hpp"
#include "tests/support/strategies.hpp"
#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"
#include "text_format_detection/reading/read_with_mode_internal.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using support::json;
using support::record_of;
using support::value_of;
using support::write_value;
using textio::GenericStrategy;
using textio::StrategyValuation;
using textio::unknown_count;
using textio::parser::options;
namespace enums = textio::enums;

json part_of(json const& object, char const* const name) {
  return object.value(name, json::object());
}

// Answers.

json fields_out(textio::FieldArray const& array, std::u16string const& text) {
  json out = json::array();
  for (textio::Field const& field : array.fields()) {
    auto const start = field.empty() ? 0 : static_cast<std::size_t>(field.data() - text.data());
    out.push_back({start, start + field.length()});
  }
  return out;
}

json score_out(StrategyValuation score, bool const evaluated) {
  json out;
  support::visit_members(score, [&out](char const* const name, auto const& member) {
    out[name] = support::write_value(member);
  });
  if (!evaluated) {
    out["header_lines"] = nullptr;
  }
  return out;
}

/// The score of an unscored strategy as it stands: the worst values, and the rank of its layout,
/// which the real score tells. Asking for that changes the strategy.
StrategyValuation untouched_score(GenericStrategy& strategy) {
  StrategyValuation score;
  score.prior_rank = strategy.valuation().prior_rank;
  return score;
}

json strategy_out(GenericStrategy& strategy, std::u16string const& text) {
  bool const evaluated = strategy.is_evaluated();
  options const& own = strategy.options();
  json out = {{"mode", static_cast<unsigned>(strategy.mode())},
              {"delimiters", write_value(own.delimiters)},
              {"whitespace", write_value(own.whitespace)},
              {"type_whitespace", write_value(strategy.type_options().whitespace)},
              {"column_widths", own.column_widths},
              {"header_lines", write_value(strategy.header_lines())},
              {"detect_header_lines", strategy.detects_header_lines()},
              {"num_variables", write_value(strategy.num_variables())},
              {"blank_delimited", strategy.is_blank_delimited()},
              {"evaluated", evaluated},
              {"types", strategy.has_inspected_columns() ? json(strategy.column_types()) : json()},
              {"record_ends", strategy.field_array()->record_ends()},
              {"fields", fields_out(*strategy.field_array(), text)}};
  // Last, behind all that scoring would change.
  out["valuation"] =
      score_out(evaluated ? strategy.valuation() : untouched_score(strategy), evaluated);
  return out;
}

char const* name_of(textio::detection::Outcome const outcome) {
  constexpr std::array names{"candidate", "line_reader", "comma_fallback"};
  return names.at(static_cast<std::size_t>(outcome));
}

char const* name_of(textio::detection::Reason const reason) {
  constexpr std::array names{"date_columns", "no_records", "no_candidates", "single",
                             "ranked",       "tie",        "none_left"};
  return names.at(static_cast<std::size_t>(reason));
}

json answer_pick(json const& question, std::u16string const& text) {
  auto const given = record_of<options>(part_of(question, "options"));
  auto const type_options = record_of<TypeAnalyzerOptions>(part_of(question, "type_options"));
  textio::detection::StrategySelector selector(given, type_options);
  textio::detection::DetectionReport report;
  auto const result = selector.pick_strategy(
      textio::Field(text), value_of<std::size_t>(question.value("records", json(250))), report);
  json candidates = json::array();
  for (auto const& candidate : report.candidates) {
    candidates.push_back(strategy_out(*candidate, text));
  }
  json rejected = json::array();
  for (auto const& sampled : report.sampled) {
    if (!sampled.candidate) {
      rejected.push_back(strategy_out(*sampled.strategy, text));
    }
  }
  return {{"outcome", name_of(report.outcome)},
          {"reason", name_of(report.reason)},
          {"index", report.winner ? json(*report.winner) : json()},
          {"result", strategy_out(*result, text)},
          {"line_reader", strategy_out(*report.line_reader, text)},
          {"candidates", candidates},
          {"rejected", rejected}};
}

enums::StrategyMode raw_mode(std::string const& kind) {
  return kind == "raw_delimited"     ? enums::StrategyMode::Delimited
         : kind == "raw_fixed_width" ? enums::StrategyMode::FixedWidth
                                     : enums::StrategyMode::LineReader;
}

/// Calls `run`; the parser error that it throws, or null.
template <class Run>
json catch_error(Run const& run) {
  json out;
  support::catch_parser_error(run, [&out](char const* const type, auto const& error) {
    out = {{"type", type},
           {"record", error.record},
           {"field", error.field},
           {"detail", write_value(error.detail)},
           {"token", write_value(error.token)}};
  });
  return out;
}

/// Reads a sample, with as many fields a record as there are columns.
textio::ReadSummary sample(options const& how, enums::StrategyMode const mode,
                           std::u16string_view const text,
                           textio::reading::ReadLimits const& limits, textio::FieldArray& fields) {
  bool const limited = mode == enums::StrategyMode::FixedWidth && !how.column_widths.empty();
  return textio::reading::read_with_mode(
      how, mode, text, limits,
      {fields, how.whitespace, limited ? how.column_widths.size() : unknown_count});
}

json answer_read(json const& question, std::u16string const& text) {
  auto const kind = question.at("strategy").get<std::string>();
  auto in_force = record_of<options>(part_of(question, "options"));
  enums::StrategyMode mode = raw_mode(kind);
  if (!kind.starts_with("raw_")) {
    char const* const argument = kind == "fixed_width" ? "widths" : "delimiters";
    auto const strategy = support::make_strategy(
        kind, in_force, {},
        question.value(argument, kind == "fixed_width" ? json::array() : json()));
    in_force = strategy->options();
    mode = strategy->mode();
  }
  auto const records = value_of<std::size_t>(question.value("records", json(250)));
  auto const lines = value_of<std::size_t>(question.value("line_limit", json()));
  bool const sampling = question.value("sampling", true);
  textio::FieldArray fields;
  textio::ReadSummary summary;
  json const error = catch_error([&] {
    summary = sampling ? sample(in_force, mode, text, {records, lines, true}, fields)
                       : textio::read_records(in_force, mode, textio::Field(text), records, lines,
                                              fields);
  });
  bool const done = error.is_null();
  return {{"error", error},
          {"record_ends", fields.record_ends()},
          {"fields", fields_out(fields, text)},
          {"consumed", done ? json(summary.units_consumed) : json()},
          {"lines", done ? json(summary.lines_scanned) : json()},
          {"records", done ? json(summary.records_stored) : json()}};
}

json answer_header_lines(json const& question) {
  return {{"value", textio::detection::get_header_lines(
                        question.at("deviations").get<std::vector<std::size_t>>(),
                        question.at("minimum"), question.at("blank_delimited"))}};
}

json answer_rank(json const& question) {
  namespace rules = textio::detection::picker_rules;
  rules::Valuations scores;
  for (json const& score : question.at("valuations")) {
    scores.push_back(record_of<StrategyValuation>(score));
  }
  std::vector<textio::detection::RuleStep> steps;
  auto const value = rules::pick_index(
      rules::build_rules(question.at("ignore_num_variables"), question.at("num_variables"),
                         question.at("detect_header_lines")),
      scores, &steps);
  json trace = json::array();
  for (auto const& step : steps) {
    trace.push_back({step.rule, step.survivors});
  }
  return {{"value", value}, {"trace", trace}};
}

json answer_datetime(json const& question, std::u16string const& text) {
  try {
    return {{"value", ostrel::io::text::typeconversion::is_datetime(
                          textio::Field(text), value_of<std::u16string>(question.at("format")))}};
  } catch (std::invalid_argument const&) {
    return {{"value", false}};
  }
}

json answer(json const& question) {
  auto const text = value_of<std::u16string>(question.value("text", json("")));
  std::string const op = question.value("op", "pick");
  json out;
  if (op == "pick") {
    json const error = catch_error([&] { out = answer_pick(question, text); });
    if (!error.is_null()) {
      return {{"error", error}};
    }
  } else if (op == "read") {
    out = answer_read(question, text);
  } else if (op == "header_lines") {
    out = answer_header_lines(question);
  } else if (op == "rank") {
    out = answer_rank(question);
  } else if (op == "datetime") {
    out = answer_datetime(question, text);
  } else if (op == "classify") {
    out = {{"value", textio::strategies::classify_field(
                         record_of<TypeAnalyzerOptions>(part_of(question, "type_options")), text)}};
  } else {
    throw std::invalid_argument("unknown op: " + op);
  }
  if (!out.contains("error")) {
    out["error"] = nullptr;
  }
  return out;
}

bool answer_all() {
  for (std::string line; std::getline(std::cin, line);) {
    json const question = json::parse(line);
    json out = answer(question);
    out["id"] = question.value("id", json());
    std::cout << out.dump() << '\n';
  }
  return static_cast<bool>(std::cout.flush());
}

}  // namespace

int main() {
  std::ios::sync_with_stdio(false);
  try {
    return answer_all() ? 0 : 1;
  } catch (std::exception const& error) {
    std::cerr << "json_driver: " << error.what() << '\n';
    return 1;
  }
}
