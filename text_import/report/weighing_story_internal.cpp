// SPDX-License-Identifier: MIT
#include "text_import/report/weighing_story_internal.hpp"

#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "text_import/format/utf.hpp"
#include "text_import/report/headings_internal.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/rule_lists_internal.hpp"
#include "text_import/report/text_table_internal.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

namespace {

std::string comments_text(std::vector<std::u16string> const& markers) {
  return markers.size() == 1 ? fmt::format("comments start with {}", in_quotes(markers.front()))
                             : fmt::format("comments reach from {} to {}", in_quotes(markers[0]),
                                           in_quotes(markers[1]));
}

/// What is assumed, and what in the text gives reason to.
std::string hypothesis_text(Hypothesis const& hypothesis) {
  std::vector<std::string> assumed;
  std::vector<std::string_view> reasons;
  if (hypothesis.quotes_are_ordinary) {
    assumed.emplace_back("quotes are ordinary characters");
    reasons.emplace_back("a line holds an odd number of quotes");
  }
  if (hypothesis.apostrophes_quote) {
    assumed.emplace_back("apostrophes are the quotes");
    reasons.emplace_back("apostrophes open and close fields in many lines");
  }
  if (!hypothesis.comment_markers.empty()) {
    assumed.push_back(comments_text(hypothesis.comment_markers));
    reasons.emplace_back("so do some lines");
  }
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
          fmt::format("{:.2f}", candidate.soundness),
          std::string(1, letter_of(candidate.hypothesis))}) {
      row.push_back(*from_utf8(cell));
    }
  }
  return aligned_table({{u"#", true},
                        {u"reading"},
                        {u"columns", true},
                        {u"records", true},
                        {u"soundness", true},
                        {u"assumed"}},
                       rows, {.width = width, .indent = 2});
}

std::vector<NumberedReading> fallen_at(Evidence const& evidence, std::size_t const rule) {
  std::vector<NumberedReading> fallen;
  for (std::size_t i = 0; i < evidence.candidates.size(); ++i) {
    Candidate const& candidate = evidence.candidates[i];
    if (candidate.rule == rule) {
      fallen.push_back({i, reading_name(candidate), candidate.measure,
                        measure_text(evidence.rules[rule], candidate.measure)});
    }
  }
  return fallen;
}

/// The rules at which readings fell, in their order.
std::string fallen_text(Evidence const& evidence, std::size_t const width) {
  std::string text;
  std::size_t number = 0;
  std::size_t left = evidence.candidates.size();
  for (std::size_t rule = 0; rule < evidence.rules.size(); ++rule) {
    auto fallen = fallen_at(evidence, rule);
    if (fallen.empty()) {
      continue;
    }
    std::size_t const falling = fallen.size();
    std::size_t const seen = std::exchange(left, left - falling);
    RuleText const& words = evidence.rules[rule];
    text += rule_heading(++number, words.name, words.meaning, width);
    text += paragraph(
        fmt::format("{} of {} fall: {}", falling, seen, numbered_list(std::move(fallen))), width);
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
  if (std::string const fallen = fallen_text(evidence, style.width); !fallen.empty()) {
    text += heading("Rules at which readings fall", style);
    text += fallen;
  }
  text += heading("What is left", style);
  std::string const left = evidence.winner
                               ? fmt::format("#{} {}", *evidence.winner + 1,
                                             candidate_text(evidence.candidates[*evidence.winner]))
                               : std::string("none: each line is a value");
  return text + paragraph(left, style.width, 2);
}

}  // namespace textimport::reporting
