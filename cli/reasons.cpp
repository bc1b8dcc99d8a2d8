// SPDX-License-Identifier: MIT

#include "cli/reasons.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/words.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

/// The candidates that the last rule left, by name.
std::string level_candidates(textio::detection::DetectionReport const& report) {
  std::vector<std::string> names;
  if (!report.steps.empty()) {
    for (std::size_t const position : report.steps.back().survivors) {
      names.push_back(reading_name(*report.candidates[position]));
    }
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

/// Why a ranking rule prefers what it keeps.
std::string_view rule_meaning(std::string_view const rule) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 7> meanings{{
      {"numvariables", "only this one has the number of columns that is expected"},
      {"dates", "only this one has columns of dates or times"},
      {"variation", "this one's records are the most regular"},
      {"class_value", "this one's column types tell the most"},
      {"header_lines", "this one has the fewest header lines"},
      {"non_empty", "this one has the largest share of columns with values"},
      {"priors_rank", "this one's delimiter is the most usual"},
  }};
  auto const* const known =
      std::ranges::find(meanings, rule, &decltype(meanings)::value_type::first);
  return known == meanings.end() ? rule : known->second;
}

std::string why_single(Answer const& answer) {
  if (answer.library->finding.strategy->mode() == StrategyMode::FixedWidth &&
      answer.library->finding.report->sampled.size() <= 2) {
    return "the columns are what the blanks common to all lines leave";
  }
  std::size_t const tried = answer.library->finding.report->sampled.size();
  return tried == 1 ? "the only reading that was tried, and it splits the lines regularly"
                    : fmt::format(
                          "of {} readings that were tried, only this one splits the lines "
                          "regularly",
                          tried);
}

std::string why_ranked(Answer const& answer) {
  auto const& report = *answer.library->finding.report;
  std::string_view const rule = report.steps.back().rule;
  return fmt::format("of {} regular readings, {}", report.candidates.size(), rule_meaning(rule));
}

std::string why_given(Settings const& settings) {
  if (settings.is_given(Option::Delimiter)) {
    return "the delimiter is given";
  }
  return settings.is_given(Option::Widths) ? "the widths are given" : "the layout is given";
}

std::string nothing_there(Answer const& answer) {
  return answer.sample.empty() ? "the file is empty" : "the text holds nothing but blanks";
}

std::string other_columns(std::size_t const columns, Settings const& settings) {
  return fmt::format("the number of columns is {}, where {} are expected", columns,
                     settings.parsing.num_variables);
}

}  // namespace

std::string why_library(Answer const& answer, Settings const& settings) {
  switch (answer.library->finding.verdict) {
    case Verdict::DateColumns:
      return "each line as a whole is a date or a time; the comma is a fallback";
    case Verdict::NoRecords:
      return nothing_there(answer);
    case Verdict::NoCandidates:
      return "no character splits the lines into a regular number of fields";
    case Verdict::Single:
      return why_single(answer);
    case Verdict::Ranked:
      return why_ranked(answer);
    case Verdict::Tie:
      return fmt::format("the rules left several readings level ({}); the comma is a fallback",
                         level_candidates(*answer.library->finding.report));
    case Verdict::NoneLeft:
      return "the rules left no reading";
    case Verdict::Given:
      return why_given(settings);
    case Verdict::ColumnsDiffer:
    case Verdict::Unsure:
      break;
  }
  return other_columns(answer.library->column_types.size(), settings);
}

std::string why(Answer const& answer, Settings const& settings) {
  if (!answer.survey) {
    return why_library(answer, settings);
  }
  switch (answer.verdict) {
    case Verdict::Given:
      return why_given(settings);
    case Verdict::NoRecords:
      return nothing_there(answer);
    case Verdict::ColumnsDiffer:
      return other_columns(answer.column_types.size(), settings);
    default:
      return answer.survey->reason;
  }
}

}  // namespace cli
