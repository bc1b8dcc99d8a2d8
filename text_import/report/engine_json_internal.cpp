// SPDX-License-Identifier: MIT

#include "text_import/report/engine_json_internal.hpp"

#include "text_format_detection/detection/untried_characters.hpp"
#include "text_import/analysis/engine_margin.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/engine_words.hpp"

namespace textimport {

namespace {

using textio::GenericStrategy;
using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::RejectionClause;
using textio::enums::ColumnType;
using textio::enums::StrategyMode;

Json known_count(std::size_t const count) {
  return count == textio::unknown_count ? Json() : json_value(count);
}

/// How a strategy splits lines. Of the options only what its mode reads by means anything.
Json reading(GenericStrategy const& strategy) {
  StrategyMode const mode = strategy.mode();
  auto const& options = strategy.options();
  bool const has_delimiters = mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned;
  Json object{{"layout", word_of(mode)}};
  object["delimiters"] = has_delimiters ? json_value(options.delimiters) : Json::array();
  object["widths"] =
      mode == StrategyMode::FixedWidth ? json_value(options.column_widths) : Json::array();
  return object;
}

void add_columns(Json& object, GenericStrategy& strategy) {
  object["header_lines"] = known_count(strategy.valuation().header_lines);
  object["num_columns"] = strategy.valuation().num_variables;
  object["column_types"] = Json::array();
  for (unsigned char const code : strategy.column_types()) {
    object["column_types"].push_back(word_of(static_cast<ColumnType>(code)));
  }
}

/// The fallback is not kept, because nothing is known of it.
Json comma_fallback() {
  return {{"layout", word_of(StrategyMode::Delimited)},
          {"delimiters", {","}},
          {"widths", Json::array()},
          {"header_lines", nullptr},
          {"num_columns", nullptr},
          {"column_types", Json::array()}};
}

Json answer_of(DetectionReport const& report) {
  if (report.outcome == Outcome::CommaFallback) {
    return comma_fallback();
  }
  GenericStrategy& strategy = report.outcome == Outcome::Candidate && report.winner
                                  ? *report.candidates[*report.winner]
                                  : *report.line_reader;
  Json object = reading(strategy);
  add_columns(object, strategy);
  return object;
}

Json scored(GenericStrategy& strategy) {
  auto const& score = strategy.valuation();
  Json object = reading(strategy);
  object["num_records"] = score.num_records;
  object["typical_fields"] = score.typical_fields;
  object["mean_deviation"] = json_value(score.mean_deviation);
  object["data_variation"] = json_value(score.data_variation);
  object["typed_columns"] = score.typed_columns;
  object["numeric_columns"] = score.numeric_columns;
  object["datetime_columns"] = score.datetime_columns;
  object["date_columns"] = score.date_columns;
  object["delimiter_columns"] = score.delimiter_columns;
  object["prior_rank"] = json_value(score.prior_rank);
  add_columns(object, strategy);
  return object;
}

Json not_tried(std::u16string_view const sample, DetectionReport const& report) {
  Json array = Json::array();
  for (auto const& [character, why] : untried_characters(sample, report)) {
    std::u16string text;
    append_utf16(text, character);
    array.push_back({{"character", json_value(text)}, {"why", word_of(why)}});
  }
  return array;
}

Json sampled(DetectionReport const& report) {
  Json array = Json::array();
  for (auto const& [strategy, fate, clause, candidate] : report.sampled) {
    Json object = scored(*strategy);
    object["fate"] = word_of(fate);
    object["rejected_by"] = clause == RejectionClause::None ? Json() : Json(word_of(clause));
    object["candidate"] = json_value(candidate);
    array.push_back(std::move(object));
  }
  return array;
}

Json rules(DetectionReport const& report) {
  Json array = Json::array();
  for (auto const& step : report.steps) {
    array.push_back({{"rule", step.rule},
                     {"seen", step.seen},
                     {"measures", json_value(step.measures)},
                     {"survivors", step.survivors}});
  }
  return array;
}

}  // namespace

Json engine_answer(DetectionReport const& report) {
  Json object = answer_of(report);
  object["decided"] = report.outcome != Outcome::CommaFallback;
  object["reason"] = word_of(report.reason);
  object["outcome"] = word_of(report.outcome);
  return object;
}

Json engine_story(std::u16string_view const sample, DetectionReport const& report) {
  EngineMargin const margin = engine_margin(report);
  return {{"line_reader", scored(*report.line_reader)},
          {"not_tried", not_tried(sample, report)},
          {"sampled", sampled(report)},
          {"rules", rules(report)},
          {"winner", json_value(report.winner)},
          {"runners_up", margin.runners_up},
          {"margin", json_value(margin.margin)}};
}

}  // namespace textimport
