// SPDX-License-Identifier: MIT
#include "text_import/report/reasons_internal.hpp"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <vector>

#include <fmt/format.h>

#include "text_import/report/engine_rules_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/sampled_part_internal.hpp"
#include "text_import/report/score_words_internal.hpp"

namespace textimport::reporting {

namespace {

using EngineReason = textio::detection::Reason;
using textio::detection::DetectionReport;
using textio::enums::StrategyMode;

/// "every line has 6 fields at commas".
std::string lines_clause(Analysis const& analysis, Candidate const& candidate) {
  std::string const fields = fields_text(candidate);
  if (candidate.coverage >= 1) {
    return "every line has " + fields;
  }
  SampledPart const part = sampled_part(analysis);
  bool const are_whole = part.num_records > 0 && part.num_whole_records == part.num_records;
  return analysis.decided && are_whole  // what stands against a guess is the text without data
             ? "every line of the data has " + fields
             : fmt::format("{} of the lines have {}", share_text(candidate.coverage), fields);
}

/// What a type is one of, in a word for many of them; empty for text and for no values.
std::string_view kind_of(ValueType const type) {
  switch (type) {
    case ValueType::Integer:
    case ValueType::Real:
    case ValueType::Complex:
      return "numbers";
    case ValueType::Date:
    case ValueType::DateTime:
      return "dates";
    case ValueType::Time:
    case ValueType::Duration:
      return "times";
    case ValueType::Boolean:
    case ValueType::Hexadecimal:
    case ValueType::Binary:
      return "codes";
    case ValueType::Empty:
    case ValueType::Text:
      break;
  }
  return "";
}

/// "numbers, dates or times": the kinds that there are.
std::string kinds_text(std::vector<Column> const& columns) {
  std::vector<std::string_view> kinds;
  for (std::string_view const kind : {"numbers", "dates", "times", "codes"}) {
    auto const is_kind = [&](Column const& column) { return kind_of(column.type) == kind; };
    if (std::ranges::any_of(columns, is_kind)) {
      kinds.push_back(kind);
    }
  }
  std::string const last(kinds.back());
  kinds.pop_back();
  return kinds.empty() ? last : fmt::format("{} or {}", fmt::join(kinds, ", "), last);
}

/// "4 of 6 columns hold numbers or dates".
std::string types_clause(std::vector<Column> const& columns) {
  auto const tells = [](Column const& column) { return !kind_of(column.type).empty(); };
  auto const telling = static_cast<std::size_t>(std::ranges::count_if(columns, tells));
  if (telling == 0) {
    return "no column holds more than text";
  }
  std::string const count = telling < columns.size()
                                ? fmt::format("{} of {} columns", telling, columns.size())
                                : fmt::format("all {} columns", telling);
  return fmt::format("{} {} {}", count, telling == 1 ? "holds" : "hold", kinds_text(columns));
}

std::string next_best(Evidence const& evidence) {
  if (!evidence.runner_up) {
    return "nothing else splits the lines";
  }
  return fmt::format("next best: {}, {}",
                     fields_text(evidence.candidates[evidence.runner_up->candidate]),
                     share_text(evidence.runner_up->certainty));
}

std::string why_table(Analysis const& analysis) {
  Evidence const& evidence = analysis.evidence;
  if (!evidence.winner) {
    return next_best(evidence);
  }
  return fmt::format("{}, {}; {}", lines_clause(analysis, evidence.candidates[*evidence.winner]),
                     types_clause(analysis.format.columns), next_best(evidence));
}

std::string why_lines(Evidence const& evidence) {
  auto const ranked = ranked_candidates(evidence);
  if (ranked.size() < 2) {
    return "nothing splits the lines into columns";
  }
  std::string const nearest =
      fmt::format("next best: {}, {}", fields_text(*ranked[1]), share_text(ranked[1]->share));
  std::string const reasons = strongest_text(evidence, *ranked[0], *ranked[1], 2);
  return reasons.empty() ? nearest : fmt::format("{}; against it: {}", nearest, reasons);
}

std::string why_given(LayoutFormat const& layout) {
  if (layout.delimiters_origin == Origin::Given) {
    return "the delimiter is given";
  }
  return layout.widths_origin == Origin::Given ? "the widths are given" : "the layout is given";
}

std::string nothing_there(Analysis const& analysis) {
  return analysis.lines.text().empty() ? "the file is empty" : "the text holds nothing but blanks";
}

/// The candidates that the last rule left, by name.
std::string level_candidates(DetectionReport const& engine) {
  std::vector<std::string> names;
  if (!engine.steps.empty()) {
    for (std::size_t const position : engine.steps.back().survivors) {
      names.push_back(reading_name(*engine.candidates[position]));
    }
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string why_single(DetectionReport const& engine) {
  std::size_t const tried = engine.sampled.size();
  bool const is_fixed = engine.candidates.front()->mode() == StrategyMode::FixedWidth;
  if (is_fixed && tried <= 2) {
    return "the columns are what the blanks common to all lines leave";
  }
  return tried == 1
             ? "the only reading that was tried, and it splits the lines regularly"
             : fmt::format(
                   "of {} readings that were tried, only this one splits the lines regularly",
                   tried);
}

std::string why_ranked(DetectionReport const& engine) {
  return fmt::format("of {} regular readings, {}", engine.candidates.size(),
                     engine_rule(engine.steps.back().rule).preference);
}

}  // namespace

std::string why(DetectionReport const& engine) {
  switch (engine.reason) {
    case EngineReason::DateColumns:
      return "each line as a whole is a date or a time; the comma is a fallback";
    case EngineReason::NoRecords:
      return "there are no records";
    case EngineReason::NoCandidates:
      return "no character splits the lines into a regular number of fields";
    case EngineReason::Single:
      return why_single(engine);
    case EngineReason::Ranked:
      return why_ranked(engine);
    case EngineReason::Tie:
      return fmt::format("the rules left several readings level ({}); the comma is a fallback",
                         level_candidates(engine));
    case EngineReason::NoneLeft:
      break;
  }
  return "the rules left no reading";
}

std::string why(Analysis const& analysis) {
  switch (analysis.reason) {
    case Reason::NoRecords:
      return nothing_there(analysis);
    case Reason::Given:
      return why_given(analysis.format.layout);
    case Reason::OnlyReading:
    case Reason::BestReading:
      return why_table(analysis);
    case Reason::NoTable:
      return why_lines(analysis.evidence);
    case Reason::EngineDecided:
      return analysis.engine ? why(*analysis.engine) : why_given(analysis.format.layout);
    case Reason::Unsure:
      return "too little speaks for the best reading: " + why_table(analysis);
    case Reason::ColumnsDiffer:
      return fmt::format("it has {}, where {} are expected",
                         counted(analysis.format.columns.size(), "column"),
                         analysis.evidence.expected_columns.value_or(0));
    case Reason::LayoutNotFound:
      return "nothing splits the lines as the given layout asks for";
    case Reason::StartNotFound:
      break;
  }
  return "no line is the one behind which the data should begin";
}

}  // namespace textimport::reporting
