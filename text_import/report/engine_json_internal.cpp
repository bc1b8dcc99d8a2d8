// SPDX-License-Identifier: MIT

#include "text_import/report/engine_json_internal.hpp"

#include "text_format_detection/detection/untried_characters.hpp"
#include "text_import/analysis/engine_margin.hpp"
#include "text_import/format/json_values_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/engine_words.hpp"

namespace textimport {

namespace {

using textio::GenericStrategy;
using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::RejectionClause;
using textio::detection::RuleStep;
using textio::detection::SampledStrategy;
using textio::detection::UntriedCharacter;
using textio::enums::ColumnType;
using textio::enums::StrategyMode;

std::optional<std::size_t> known_count(std::size_t const count) {
  return count == textio::unknown_count ? std::nullopt : std::optional(count);
}

/// How a strategy splits lines. Of the options only what its mode reads by means anything.
void write_reading(JsonWriter& writer, GenericStrategy const& strategy) {
  StrategyMode const mode = strategy.mode();
  auto const& options = strategy.options();
  bool const has_delimiters = mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned;
  bool const has_widths = mode == StrategyMode::FixedWidth;
  write_member(writer, "layout", mode);
  write_member(writer, "delimiters",
               has_delimiters ? options.delimiters : decltype(options.delimiters)());
  write_member(writer, "widths",
               has_widths ? options.column_widths : decltype(options.column_widths)());
}

void write_column_type(JsonWriter& writer, unsigned char const code) {
  write_value(writer, static_cast<ColumnType>(code));
}

void write_columns(JsonWriter& writer, GenericStrategy& strategy) {
  write_member(writer, "header_lines", known_count(strategy.valuation().header_lines));
  write_member(writer, "num_columns", strategy.valuation().num_variables);
  writer.key("column_types");
  write_list(writer, strategy.column_types(), write_column_type);
}

/// The fallback is not kept, because nothing is known of it.
void write_comma_fallback(JsonWriter& writer) {
  write_member(writer, "layout", StrategyMode::Delimited);
  write_member(writer, "delimiters", std::vector<std::u16string>{u","});
  write_member(writer, "widths", std::vector<std::size_t>());
  write_member(writer, "header_lines", std::optional<std::size_t>());
  write_member(writer, "num_columns", std::optional<std::size_t>());
  write_member(writer, "column_types", std::vector<std::string>());
}

void write_answer(JsonWriter& writer, DetectionReport const& report) {
  if (report.outcome == Outcome::CommaFallback) {
    write_comma_fallback(writer);
    return;
  }
  GenericStrategy& strategy = report.outcome == Outcome::Candidate && report.winner
                                  ? *report.candidates[*report.winner]
                                  : *report.line_reader;
  write_reading(writer, strategy);
  write_columns(writer, strategy);
}

void write_score(JsonWriter& writer, GenericStrategy& strategy) {
  auto const& score = strategy.valuation();
  write_reading(writer, strategy);
  write_member(writer, "num_records", score.num_records);
  write_member(writer, "typical_fields", score.typical_fields);
  write_member(writer, "mean_deviation", score.mean_deviation);
  write_member(writer, "data_variation", score.data_variation);
  write_member(writer, "typed_columns", score.typed_columns);
  write_member(writer, "numeric_columns", score.numeric_columns);
  write_member(writer, "datetime_columns", score.datetime_columns);
  write_member(writer, "date_columns", score.date_columns);
  write_member(writer, "delimiter_columns", score.delimiter_columns);
  write_member(writer, "prior_rank", score.prior_rank);
  write_columns(writer, strategy);
}

void write_line_reader(JsonWriter& writer, GenericStrategy& strategy) {
  writer.begin_object();
  write_score(writer, strategy);
  writer.end_object();
}

void write_untried(JsonWriter& writer, UntriedCharacter const& untried) {
  std::u16string text;
  append_utf16(text, untried.character);
  writer.begin_object();
  write_member(writer, "character", text);
  write_member(writer, "why", untried.why);
  writer.end_object();
}

void write_sampled(JsonWriter& writer, SampledStrategy const& sampled) {
  bool const is_rejected = sampled.clause != RejectionClause::None;
  writer.begin_object();
  write_score(writer, *sampled.strategy);
  write_member(writer, "fate", sampled.fate);
  write_member(writer, "rejected_by", is_rejected ? std::optional(sampled.clause) : std::nullopt);
  write_member(writer, "candidate", sampled.candidate);
  writer.end_object();
}

void write_rule_step(JsonWriter& writer, RuleStep const& step) {
  writer.begin_object();
  write_member(writer, "rule", step.rule);
  write_member(writer, "seen", step.seen);
  write_member(writer, "measures", step.measures);
  write_member(writer, "survivors", step.survivors);
  writer.end_object();
}

}  // namespace

void write_engine_answer(JsonWriter& writer, DetectionReport const& report) {
  writer.begin_object();
  write_answer(writer, report);
  write_member(writer, "decided", report.outcome != Outcome::CommaFallback);
  write_member(writer, "reason", report.reason);
  write_member(writer, "outcome", report.outcome);
  writer.end_object();
}

void write_engine_story(JsonWriter& writer, std::u16string_view const sample,
                        DetectionReport const& report) {
  EngineMargin const margin = engine_margin(report);
  writer.begin_object();
  writer.key("line_reader");
  write_line_reader(writer, *report.line_reader);
  writer.key("not_tried");
  write_list(writer, untried_characters(sample, report), write_untried);
  writer.key("sampled");
  write_list(writer, report.sampled, write_sampled);
  writer.key("rules");
  write_list(writer, report.steps, write_rule_step);
  write_member(writer, "winner", report.winner);
  write_member(writer, "runners_up", margin.runners_up);
  write_member(writer, "margin", margin.margin);
  writer.end_object();
}

}  // namespace textimport
