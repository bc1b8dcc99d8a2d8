// SPDX-License-Identifier: MIT
#include "text_import/report/engine_story_internal.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "text_format_detection/detection/untried_characters.hpp"
#include "text_import/analysis/engine_margin.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/engine_rules_internal.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/reasons_internal.hpp"
#include "text_import/report/rule_lists_internal.hpp"
#include "text_import/report/text_table_internal.hpp"
#include "text_import/report/untried_characters_internal.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

namespace {

using textio::GenericStrategy;
using textio::detection::CandidateFate;
using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::RejectionClause;
using textio::detection::RuleStep;
using textio::detection::SampledStrategy;

std::string_view fate_text(SampledStrategy const& sampled) {
  switch (sampled.fate) {
    case CandidateFate::Accepted:
      return "accepted";
    case CandidateFate::LessTyped:
      return "fewer typed columns";
    case CandidateFate::ReplacedByFixedWidth:
      return "fixed widths instead";
    case CandidateFate::Rejected:
      break;
  }
  switch (sampled.clause) {
    case RejectionClause::SingleRecordUncommonDelimiter:
      return "rare, and one record";
    case RejectionClause::SingleRecordOneField:
    case RejectionClause::OneField:
      return "one field a record";
    case RejectionClause::None:
    case RejectionClause::SingleRecordIrregular:
    case RejectionClause::Irregular:
      break;
  }
  return "irregular";
}

std::size_t header_lines_of(std::size_t const found) {
  return found == textio::unknown_count ? 0 : found;
}

/// "comma, 6 columns, 0 header lines".
std::string answer_text(DetectionReport const& engine) {
  if (engine.outcome == Outcome::CommaFallback) {
    return "not decided; read as comma";
  }
  GenericStrategy& strategy =
      engine.winner ? *engine.candidates[*engine.winner] : *engine.line_reader;
  auto const& score = strategy.valuation();
  return fmt::format("{}, {}, {}", reading_name(strategy), counted(score.num_variables, "column"),
                     counted(header_lines_of(score.header_lines), "header line"));
}

std::string runners_up_text(DetectionReport const& engine, EngineMargin const& nearest) {
  constexpr std::size_t most = 4;
  std::vector<std::string> names;
  for (std::size_t const candidate : nearest.runners_up) {
    if (names.size() < most) {
      names.push_back(reading_name(*engine.candidates[candidate]));
    }
  }
  std::string const margin =
      nearest.margin ? fmt::format(", by {}", number_text(*nearest.margin)) : "";
  return fmt::format("{}{} (fell at {}{})", fmt::join(names, ", "),
                     and_more(nearest.runners_up.size() - names.size()), engine.steps.back().rule,
                     margin);
}

std::string summary(DetectionReport const& engine, std::size_t const width) {
  FactLines facts(width);
  facts.add("answer", answer_text(engine));
  facts.add("why", why(engine));
  if (auto const nearest = engine_margin(engine); !nearest.runners_up.empty()) {
    facts.add("runner-up", runners_up_text(engine, nearest));
  }
  return facts.text();
}

/// A line of the table of readings; `number` is "-" for what is no candidate.
std::vector<std::u16string> reading_row(std::string const& number, GenericStrategy& strategy,
                                        std::string_view const outcome) {
  auto const& score = strategy.valuation();
  std::vector<std::u16string> row;
  for (std::string const& cell :
       {number, reading_name(strategy), fmt::format("{}", score.num_variables),
        number_text(score.data_variation),
        fmt::format("{}/{}", score.typed_columns, score.num_variables),
        fmt::format("{}", header_lines_of(score.header_lines)), std::string(outcome)}) {
    row.push_back(*from_utf8(cell));
  }
  return row;
}

std::string readings_table(Rows const& rows, std::size_t const width) {
  return aligned_table({{u"#", true},
                        {u"reading"},
                        {u"columns", true},
                        {u"irregular", true},
                        {u"typed", true},
                        {u"header", true},
                        {u"outcome"}},
                       rows, {.width = width, .indent = 2});
}

Rows sampled_rows(DetectionReport const& engine) {
  Rows rows;
  for (SampledStrategy const& sampled : engine.sampled) {
    std::string const number =
        sampled.candidate ? fmt::format("{}", *sampled.candidate + 1) : std::string("-");
    rows.push_back(reading_row(number, *sampled.strategy, fate_text(sampled)));
  }
  return rows;
}

/// Who was kept or fell at a rule, each with its number.
std::string with_numbers(DetectionReport const& engine, RuleStep const& rule, bool const kept) {
  std::vector<NumberedReading> readings;
  for (std::size_t i = 0; i < rule.seen.size(); ++i) {
    std::size_t const candidate = rule.seen[i];
    if (std::ranges::binary_search(rule.survivors, candidate) == kept) {
      readings.push_back({candidate, reading_name(*engine.candidates[candidate]), rule.measures[i],
                          number_text(rule.measures[i])});
    }
  }
  return numbered_list(std::move(readings));
}

std::string rules_story(DetectionReport const& engine, std::size_t const width) {
  std::string text;
  std::size_t number = 0;
  for (RuleStep const& rule : engine.steps) {
    text += rule_heading(++number, rule.rule, engine_rule(rule.rule).meaning, width);
    text += paragraph(fmt::format("{} of {} stay: {}", rule.survivors.size(), rule.seen.size(),
                                  with_numbers(engine, rule, true)),
                      width);
    if (rule.survivors.size() < rule.seen.size()) {
      text += paragraph("out: " + with_numbers(engine, rule, false), width);
    }
  }
  return text;
}

}  // namespace

std::string engine_story(std::u16string_view const sample, DetectionReport const& engine,
                         ReportStyle const& style) {
  std::string text = heading("The engine's own decision", style) + summary(engine, style.width);
  bool const dates = engine.reason == textio::detection::Reason::DateColumns;
  text += heading("First each line was read as one value", style);
  text += readings_table(
      {reading_row("-", *engine.line_reader, dates ? "dates or times: no table" : "")},
      style.width);
  if (dates || engine.reason == textio::detection::Reason::NoRecords) {
    return text;
  }
  text += heading("Characters in the middle lines of the sample", style);
  text += paragraph(engine.sampled.empty() ? "tried: none" : "tried: see the readings below",
                    style.width);
  text += untried_text(untried_characters(sample, engine), style.width);
  if (!engine.sampled.empty()) {
    text += heading("Readings that were tried; irregular must be below 1", style);
    text += readings_table(sampled_rows(engine), style.width);
  }
  if (!engine.steps.empty()) {
    text += heading("The engine's rules, in their order, until one reading is left", style);
    text += rules_story(engine, style.width);
  }
  return text;
}

}  // namespace textimport::reporting
