// SPDX-License-Identifier: MIT

#include "cli/survey_words.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/words.hpp"

namespace cli {

namespace {

using textimport::Layout;
using textimport::SurveyCandidate;

constexpr std::array rule_texts{
    SurveyRuleText{"regular_records",
                   "between its first and its last record a table mostly has the same number of "
                   "fields; the share of records that have it"},
    SurveyRuleText{"several_columns", "at least two columns hold values; how many do"},
    SurveyRuleText{"enough_text",
                   "a table makes up much of its text; the share of the text's records"},
    SurveyRuleText{"rare_delimiters",
                   "an unusual delimiter makes at least three columns, and values that hold "
                   "together; the columns"},
    SurveyRuleText{"sound_values",
                   "values that are cut at the right places hold together: no odd quotes, no "
                   "foreign delimiters; how well they do, 0 to 1"},
    SurveyRuleText{"single_blanks",
                   "a single blank delimits only where hardly a field is empty; the share of "
                   "empty ones"},
    SurveyRuleText{"doubled_delimiters",
                   "where a character stands in pairs only, the pair delimits; the share of empty "
                   "fields"},
    SurveyRuleText{"seconds_are_no_column",
                   "the fraction of a second behind a comma is no column; the columns"},
    SurveyRuleText{"keys_are_no_column",
                   "\"name: value\" in each line is a list of settings; the columns"},
    SurveyRuleText{"typed_fixed_width",
                   "columns of fixed width are believed where one says more than text, or the "
                   "lines agree nearly everywhere; how many say more"},
    SurveyRuleText{"touching_columns",
                   "blanks separate columns only where none stands inside a value; the share of "
                   "broken values"},
    SurveyRuleText{"best_fit",
                   "what explains about as much of the text as the best; coverage times "
                   "soundness"},
    SurveyRuleText{"usual_delimiters", "the most usual delimiter; its rank"},
};

}  // namespace

std::string candidate_name(SurveyCandidate const& candidate) {
  switch (candidate.layout) {
    case Layout::Delimited:
      return delimiter_name(candidate.delimiter);
    case Layout::SpaceAligned:
      return "runs of blanks";
    case Layout::FixedWidth:
      return "fixed widths";
    case Layout::Lines:
      break;
  }
  return "whole lines";
}

std::string candidate_text(SurveyCandidate const& candidate) {
  return fmt::format("{}, {} column{}", candidate_name(candidate), candidate.num_columns,
                     candidate.num_columns == 1 ? "" : "s");
}

std::string share_text(double const share) {
  return fmt::format("{:.0f} %", share < 1 ? std::min(std::round(share * 100), 99.0) : 100.0);
}

std::string_view confidence_word(double const confidence) {
  constexpr std::array<std::pair<double, std::string_view>, 4> words{{
      {0.95, "nearly certain"},
      {0.85, "quite sure"},
      {0.7, "likely"},
      {0.5, "more likely than not"},
  }};
  auto const* const word =
      std::ranges::find_if(words, [&](auto const& row) { return confidence >= row.first; });
  return word == words.end() ? "a guess" : word->second;
}

std::span<SurveyRuleText const> survey_rules() {
  return rule_texts;
}

std::string hypothesis_reason(std::string_view const hypothesis) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 3> reasons{{
      {"quotes are ordinary characters", "a line holds an odd number of quotes"},
      {"apostrophes are quotes", "apostrophes open and close fields in many lines"},
      {"comments start with", "so do some lines"},
  }};
  if (hypothesis == "as given") {
    return "the options, and the usual where they say nothing";
  }
  std::vector<std::string_view> known;
  for (auto const& [words, reason] : reasons) {
    if (hypothesis.find(words) != std::string_view::npos) {
      known.push_back(reason);
    }
  }
  return fmt::format("{}", fmt::join(known, "; "));
}

}  // namespace cli
