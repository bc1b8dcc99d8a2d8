// SPDX-License-Identifier: MIT
#include "text_import/report/weighing_story_internal.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "text_import/format/utf.hpp"
#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/score_words_internal.hpp"
#include "text_import/report/text_table_internal.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

namespace {

std::string comments_text(std::vector<std::u16string> const& markers) {
  return markers.size() == 1 ? fmt::format("comments start with {}", in_quotes(markers.front()))
                             : fmt::format("comments reach from {} to {}", in_quotes(markers[0]),
                                           in_quotes(markers[1]));
}

/// What lines are assumed to have beside delimiters, quotes and comment lines.
void add_syntax(LineSyntax const& syntax, std::vector<std::string>& assumed,
                std::vector<std::string>& reasons) {
  auto const add = [&](bool const is_assumed, std::string const& text, char const* const reason) {
    if (is_assumed) {
      assumed.push_back(text);
      reasons.emplace_back(reason);
    }
  };
  add(syntax.has_outer_bars, "bars stand at both ends of each record", "they do in most lines");
  add(syntax.has_rulers, "lines that are drawn are no records", "there are such lines");
  add(syntax.escape != 0,
      fmt::format("{} takes the meaning of what follows", display_text({&syntax.escape, 1}).utf8),
      "it stands before a delimiter or a quote");
  add(syntax.has_end_comments, "comments stand at the ends of lines",
      "the marker stands behind data between blanks");
  add(syntax.quotes_behind_blanks, "blanks stand before quotes",
      "a quote stands behind a delimiter and blanks");
  add(syntax.rest_of_line > 0, fmt::format("field {} is the rest of the line", syntax.rest_of_line),
      "what blanks split in front of it is the same in each line");
}

/// What is assumed, and what in the text gives reason to.
std::string hypothesis_text(Hypothesis const& hypothesis) {
  std::vector<std::string> assumed;
  std::vector<std::string> reasons;
  if (hypothesis.quotes_are_ordinary) {
    assumed.emplace_back("quotes are ordinary characters");
    reasons.emplace_back("a line holds an odd number of quotes");
  }
  if (char16_t const quote = hypothesis.quote; quote != 0) {
    std::string const name = delimiter_names({&quote, 1});
    assumed.push_back(fmt::format("{} are the quotes", name));
    reasons.push_back(fmt::format("{} open and close fields in many lines", name));
  }
  if (!hypothesis.comment_markers.empty()) {
    assumed.push_back(comments_text(hypothesis.comment_markers));
    reasons.emplace_back("so do some lines");
  }
  add_syntax(hypothesis.syntax, assumed, reasons);
  return assumed.empty()
             ? "what is given, and the usual where nothing is"
             : fmt::format("{}: {}", fmt::join(assumed, ", "), fmt::join(reasons, "; "));
}

/// A hypothesis is called by a letter in the table of readings.
char letter_of(std::size_t const hypothesis) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  return letters[hypothesis % letters.size()];
}

std::string hypotheses_text(std::vector<Hypothesis> const& hypotheses, std::size_t const width) {
  constexpr std::size_t indent = 5;
  std::string text;
  for (std::size_t i = 0; i < hypotheses.size(); ++i) {
    text += fmt::format("  {}  ", letter_of(i)) +
            wrapped(hypothesis_text(hypotheses[i]), indent, width);
  }
  return text;
}

std::string candidates_table(std::vector<Candidate> const& candidates, std::size_t const width) {
  Rows rows;
  for (Candidate const& candidate : candidates) {
    auto& row = rows.emplace_back();
    for (std::string const& cell :
         {fmt::format("{}", rows.size()), reading_name(candidate),
          fmt::format("{}", candidate.num_columns), share_text(candidate.coverage),
          candidate.is_table ? fmt::format("{:.1f}", candidate.score) : std::string("-"),
          share_text(candidate.share), std::string(1, letter_of(candidate.hypothesis))}) {
      row.push_back(*from_utf8(cell));
    }
  }
  return aligned_table({{u"#", true},
                        {u"reading"},
                        {u"columns", true},
                        {u"records", true},
                        {u"score", true},
                        {u"likely", true},
                        {u"assumed"}},
                       rows, {.width = width, .indent = 2});
}

std::string differences_text(Evidence const& evidence, Candidate const& candidate,
                             Candidate const& other, std::size_t const most,
                             std::size_t const width) {
  constexpr std::size_t indent = 11;
  constexpr double least = 0.05;  // what is shown as 0.1 at least
  std::string text;
  std::size_t shown = 0;
  for (ScoreDifference const& difference : differences(candidate, other)) {
    if (shown++ < most && std::abs(difference.amount) >= least) {
      text += fmt::format("    {:+5.1f}  ", difference.amount) +
              wrapped(difference_text(evidence, difference), indent, width);
    }
  }
  return text;
}

/// What speaks for the answer and against it, beside the reading that comes next; and what speaks
/// most for and against each of some others.
std::string scores_text(Evidence const& evidence, ReportStyle const& style) {
  constexpr std::size_t of_answer = 10;
  constexpr std::size_t of_others = 4;
  constexpr std::size_t others_shown = 2;
  auto const ranked = ranked_candidates(evidence);
  if (ranked.size() < 2) {
    return "";
  }
  std::string text = heading(fmt::format("What speaks for {} (+) and against it (-), beside {}",
                                         candidate_text(*ranked[0]), candidate_text(*ranked[1])),
                             style);
  text += differences_text(evidence, *ranked[0], *ranked[1], of_answer, style.width);
  for (std::size_t i = 2; i < std::min(ranked.size(), others_shown + 2); ++i) {
    text +=
        heading(fmt::format("{}, {} likely: what speaks for it and against it, beside the answer",
                            candidate_text(*ranked[i]), share_text(ranked[i]->share)),
                style);
    text += differences_text(evidence, *ranked[i], *ranked[0], of_others, style.width);
  }
  return text;
}

}  // namespace

std::string weighing_story(Evidence const& evidence, ReportStyle const& style) {
  if (evidence.candidates.empty()) {
    return heading("There is no reading as a table to weigh", style);
  }
  std::string text = heading("What was assumed", style);
  text += hypotheses_text(evidence.hypotheses, style.width);
  text += heading("All readings; records: the share of the text's records that have these columns",
                  style);
  text += candidates_table(evidence.candidates, style.width);
  text += scores_text(evidence, style);
  text += heading("The answer", style);
  std::string const left = evidence.winner
                               ? fmt::format("#{} {}", *evidence.winner + 1,
                                             candidate_text(evidence.candidates[*evidence.winner]))
                               : std::string("none: each line is a value");
  return text + paragraph(left, style.width, 2);
}

}  // namespace textimport::reporting
