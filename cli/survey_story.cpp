// SPDX-License-Identifier: MIT

#include "cli/survey_story.hpp"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/explain_rules.hpp"
#include "cli/lines.hpp"
#include "cli/reasons.hpp"
#include "cli/survey_report.hpp"
#include "cli/survey_words.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textimport::SurveyCandidate;
using textimport::SurveyFindings;

std::string answer_text(Answer const& answer) {
  std::size_t const columns = answer.column_types.size();
  std::string const reading =
      fmt::format("{}, {} column{}, data from line {} on", reading_name(*answer.strategy), columns,
                  columns == 1 ? "" : "s", answer.survey->data_starts_at + 1);
  return answer.decided ? reading : "not decided; read as " + reading;
}

/// The hypotheses in the order in which they were tried, each once.
std::vector<std::string_view> hypotheses_of(SurveyFindings const& findings) {
  std::vector<std::string_view> names;
  for (SurveyCandidate const& candidate : findings.candidates) {
    if (std::ranges::find(names, candidate.hypothesis) == names.end()) {
      names.emplace_back(candidate.hypothesis);
    }
  }
  return names;
}

/// A hypothesis is called by a letter in the table of readings.
char letter_of(std::size_t const hypothesis) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  return letters[hypothesis % letters.size()];
}

std::string hypotheses_text(std::vector<std::string_view> const& names, std::size_t const width) {
  constexpr std::size_t indent = 5;
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::string const reason = hypothesis_reason(names[i]);
    std::string const sentence =
        fmt::format("{}{}{}", display_bytes(names[i]).utf8, reason.empty() ? "" : ": ", reason);
    text += fmt::format("  {}  ", letter_of(i)) + wrapped(sentence, indent, width);
  }
  return text;
}

std::string candidates_text(SurveyFindings const& findings,
                            std::vector<std::string_view> const& hypotheses) {
  constexpr std::size_t name_cells = 17;
  std::string text = "    #  reading           columns  records  soundness  assumed\n";
  for (std::size_t i = 0; i < findings.candidates.size(); ++i) {
    SurveyCandidate const& candidate = findings.candidates[i];
    auto const name = display_bytes(candidate_name(candidate), name_cells);
    auto const hypothesis = std::ranges::find(hypotheses, candidate.hypothesis);
    text += fmt::format("  {:>3}  {} {:>7} {:>8} {:>10}  {}\n", i + 1, pad(name, name_cells),
                        candidate.num_columns, share_text(candidate.coverage),
                        fmt::format("{:.2f}", candidate.soundness),
                        letter_of(static_cast<std::size_t>(hypothesis - hypotheses.begin())));
  }
  return text;
}

/// The rules of the survey, and behind them any that has no words here.
std::vector<SurveyRuleText> rules_of(SurveyFindings const& findings) {
  auto const known = survey_rules();
  std::vector<SurveyRuleText> rules(known.begin(), known.end());
  for (SurveyCandidate const& candidate : findings.candidates) {
    bool const has_words =
        candidate.fell_at.empty() ||
        std::ranges::find(rules, candidate.fell_at, &SurveyRuleText::rule) != rules.end();
    if (!has_words) {
      rules.push_back({candidate.fell_at, "the reading did not pass it"});
    }
  }
  return rules;
}

/// The rules at which readings fell, in their order.
std::string fallen_text(SurveyFindings const& findings, std::size_t const width) {
  std::string text;
  std::size_t number = 0;
  std::size_t left = findings.candidates.size();
  for (SurveyRuleText const& rule : rules_of(findings)) {
    std::vector<NumberedReading> fallen;
    for (std::size_t i = 0; i < findings.candidates.size(); ++i) {
      SurveyCandidate const& candidate = findings.candidates[i];
      if (candidate.fell_at == rule.rule) {
        fallen.push_back({i, candidate_name(candidate), candidate.measure});
      }
    }
    if (fallen.empty()) {
      continue;
    }
    std::size_t const falling = fallen.size();
    std::size_t const seen = std::exchange(left, left - falling);
    text += rule_heading(++number, rule.rule, rule.meaning, width);
    text += paragraph(
        fmt::format("{} of {} fall: {}", falling, seen, numbered_list(std::move(fallen))), width);
  }
  return text;
}

}  // namespace

std::string survey_summary(Answer const& answer, Settings const& settings) {
  FactLines lines(settings.width);
  lines.add("answer", answer_text(answer));
  add_confidence(lines, answer);
  lines.add("why", why(answer, settings));
  return lines.text();
}

std::string survey_story(Answer const& answer, Settings const& settings, Colors const& colors) {
  SurveyFindings const& findings = *answer.survey;
  if (findings.candidates.empty()) {
    return heading("The survey: there is no reading to weigh", colors);
  }
  auto const hypotheses = hypotheses_of(findings);
  std::string text = heading("The survey: what was assumed", colors);
  text += hypotheses_text(hypotheses, settings.width);
  text += heading("All readings; the share of the text's records that have these columns", colors);
  text += candidates_text(findings, hypotheses);
  std::string const fallen = fallen_text(findings, settings.width);
  if (!fallen.empty()) {
    text += heading("Rules of the survey at which readings fall", colors);
    text += fallen;
  }
  text += heading("What is left", colors);
  std::string const left = findings.winner
                               ? fmt::format("#{} {}", *findings.winner + 1,
                                             candidate_text(findings.candidates[*findings.winner]))
                               : std::string("none: each line is a value");
  return text + paragraph(left, settings.width, 2);
}

}  // namespace cli
