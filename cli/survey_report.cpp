// SPDX-License-Identifier: MIT

#include "cli/survey_report.hpp"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "cli/column_list.hpp"
#include "cli/display_text.hpp"
#include "cli/report_parts.hpp"
#include "cli/survey_words.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textimport::NotedLine;
using textimport::SurveyCandidate;
using textimport::SurveyFindings;

std::string in_quotes(std::u16string_view const text) {
  return fmt::format("\"{}\"", display_text(text).utf8);
}

/// The marks that are not the usual ones.
void add_marks(FactLines& lines, SurveyFindings const& findings, Settings const& settings) {
  if (findings.quote != u'"') {
    std::string const quote = findings.quote == 0
                                  ? "none; quotation marks belong to the values"
                                  : display_text(std::u16string(1, findings.quote)).utf8;
    lines.add("quotes", quote + given_mark(settings, {Option::Quote}));
  }
  auto const& comment = findings.comment_style;
  if (!comment.empty()) {
    std::string const text =
        comment.size() == 1 ? fmt::format("behind {}", in_quotes(comment.front()))
                            : fmt::format("{} to {}", in_quotes(comment[0]), in_quotes(comment[1]));
    lines.add("comments", text + given_mark(settings, {Option::Comment}));
  }
  if (findings.decimal_mark != u'.' && findings.decimal_mark != textio::end_mark) {
    lines.add("decimal mark", delimiter_name(std::u16string(1, findings.decimal_mark)) +
                                  given_mark(settings, {Option::DecimalMark}));
  }
}

/// Where the data stand, in lines counted from 1.
std::string data_text(Answer const& answer, Settings const& settings) {
  SurveyFindings const& findings = *answer.survey;
  std::string_view const given = settings.parsing.detect_header_lines ? "" : "; the first is given";
  if (answer.data().empty()) {
    return fmt::format("none{}", given);
  }
  std::size_t const first = findings.data_starts_at + 1;
  if (!findings.data_ends_at) {
    return fmt::format("from line {} on; the sample ends before them{}", first, given);
  }
  std::size_t const last = *findings.data_ends_at;
  return first == last ? fmt::format("line {}{}", first, given)
                       : fmt::format("lines {} to {}{}", first, last, given);
}

/// Lines that hold no data, each with its number, its role and its text. In the middle of a long
/// list some are left out.
void add_noted_lines(FactLines& lines, std::string_view const where,
                     std::span<NotedLine const> const noted,
                     std::vector<std::u16string_view> const& texts, std::size_t const first) {
  constexpr std::size_t most = 12;
  constexpr std::size_t most_at_top = 6;
  constexpr std::size_t indent = 21;
  if (noted.empty()) {
    return;
  }
  lines.add(where, fmt::format("{} line{}", noted.size(), noted.size() == 1 ? "" : "s"));
  for (std::size_t i = 0; i < noted.size(); ++i) {
    if (noted.size() > most + 1 && i == most_at_top) {
      i = noted.size() - (most - most_at_top);
      lines.text() += fmt::format("         ({} more)\n", i - most_at_top);
    }
    std::size_t const place = noted[i].line - first;
    std::u16string_view const text = place < texts.size() ? texts[place] : std::u16string_view();
    std::string line =
        fmt::format("    {:>3}  {:<9} | {}", noted[i].line + 1, textimport::name_of(noted[i].role),
                    display_text(text, lines.width() - indent).utf8);
    line.erase(line.find_last_not_of(' ') + 1);
    lines.text() += line + "\n";
  }
}

void add_surroundings(FactLines& lines, SurveyFindings const& findings, Preview const& preview) {
  std::span<NotedLine const> const all(findings.lines);
  auto const below = std::ranges::find_if(
      all, [&](NotedLine const& noted) { return noted.line >= findings.data_starts_at; });
  auto const above = static_cast<std::size_t>(below - all.begin());
  add_noted_lines(lines, "above", all.first(above), preview.header_lines, 0);
  add_noted_lines(lines, "below", all.subspan(above), preview.footer_lines,
                  findings.data_ends_at.value_or(0));
}

/// The best first, each way to split the lines once.
std::vector<SurveyCandidate const*> ranked(SurveyFindings const& findings) {
  std::vector<SurveyCandidate const*> rest;
  for (SurveyCandidate const& candidate : findings.candidates) {
    rest.push_back(&candidate);
  }
  std::ranges::stable_sort(rest, std::ranges::greater{}, [](SurveyCandidate const* const c) {
    return c->coverage * c->soundness;
  });
  std::vector<SurveyCandidate const*> best;
  for (auto const& place : {findings.winner, findings.runner_up}) {
    if (place) {
      best.push_back(&findings.candidates[*place]);
    }
  }
  for (SurveyCandidate const* const candidate : rest) {
    auto const same = [&](SurveyCandidate const* const other) {
      return candidate_text(*other) == candidate_text(*candidate);
    };
    if (std::ranges::none_of(best, same)) {
      best.push_back(candidate);
    }
  }
  return best;
}

/// What else the text may be, for someone who has to decide.
void add_candidates(FactLines& lines, SurveyFindings const& findings) {
  constexpr std::size_t most = 6;
  constexpr std::size_t indent = 9;
  auto const candidates = ranked(findings);
  std::size_t const shown = std::min(candidates.size(), most);
  if (shown == 0) {
    return;
  }
  lines.add("candidates", fmt::format("the best first{}", and_more(candidates.size() - shown)));
  for (std::size_t i = 0; i < shown; ++i) {
    SurveyCandidate const& candidate = *candidates[i];
    std::string const sentence =
        fmt::format("{}: {} of the records, soundness {:.2f}", candidate_text(candidate),
                    share_text(candidate.coverage), candidate.soundness);
    lines.text() += fmt::format("    {:>3}  ", i + 1) + wrapped(sentence, indent, lines.width());
  }
}

}  // namespace

void add_confidence(FactLines& lines, Answer const& answer) {
  SurveyFindings const& findings = *answer.survey;
  if (answer.verdict == Verdict::Given || answer.verdict == Verdict::NoRecords) {
    return;
  }
  lines.add("how sure", fmt::format("{}, {}", share_text(findings.confidence),
                                    confidence_word(findings.confidence)));
  if (findings.runner_up) {
    lines.add("runner-up",
              fmt::format("{} ({})", candidate_text(findings.candidates[*findings.runner_up]),
                          share_text(findings.runner_up_confidence)));
  }
}

std::string survey_facts(Answer const& answer, Settings const& settings, Preview const& preview) {
  FactLines lines(settings.width);
  SurveyFindings const& findings = *answer.survey;
  add_layout(lines, answer, settings);
  add_marks(lines, findings, settings);
  add_confidence(lines, answer);
  if (!answer.decided && answer.verdict != Verdict::ColumnsDiffer) {
    add_candidates(lines, findings);
  }
  lines.add("data", data_text(answer, settings));
  add_surroundings(lines, findings, preview);
  add_columns(lines, answer, settings);
  add_text(lines, answer, settings);
  return lines.text();
}

}  // namespace cli
