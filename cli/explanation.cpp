// SPDX-License-Identifier: MIT

#include "cli/explanation.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_import/format/utf.hpp"

namespace cli {

namespace {

using textio::detection::Outcome;
using textio::enums::StrategyMode;

bool is_letter_or_digit(char32_t const c) {
  return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

/// Whether the library ever tries the character as a delimiter, found out by letting it look at
/// lines that nothing else could split.
bool can_be_delimiter(char16_t const c) {
  textio::parser::options const options;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;
  std::u16string const line{u'a', c, u'b', u'\n'};
  std::u16string const text = line + line + line;
  textio::detection::DetectionReport report;
  textio::detection::StrategySelector selector(options, types);
  static_cast<void>(selector.pick_strategy(textio::Field(text), textio::unknown_count, report));
  return !report.sampled.empty();
}

bool was_tried(textio::detection::DetectionReport const& report, char32_t const c) {
  return std::ranges::any_of(report.sampled, [&](auto const& sampled) {
    auto const& delimiters = sampled.strategy->options().delimiters;
    return std::ranges::any_of(delimiters, [&](std::u16string const& delimiter) {
      return delimiter.size() == 1 && delimiter.front() == c;
    });
  });
}

NotTried reason_for(char32_t const c, Settings const& settings) {
  if (c > 0x7F) {
    return NotTried::NotAscii;
  }
  auto const unit = static_cast<char16_t>(c);
  if (unit == settings.parsing.decimal_separator) {
    return NotTried::DecimalMark;
  }
  if (settings.parsing.thousands_separator.starts_with(unit)) {
    return NotTried::ThousandsMark;
  }
  return can_be_delimiter(unit) ? NotTried::OutsideMiddle : NotTried::NeverDelimiter;
}

std::vector<UntriedCharacter> untried_characters(Answer const& answer, Settings const& settings) {
  std::set<char32_t> characters;
  for (std::size_t pos = 0; pos < answer.sample.size();) {
    characters.insert(next_character(answer.sample, pos));
  }
  std::vector<UntriedCharacter> untried;
  for (char32_t const c : characters) {
    bool const ends_lines = c == U'\n' || c == U'\r';
    if (!is_letter_or_digit(c) && !ends_lines && !was_tried(*answer.library->finding.report, c)) {
      untried.push_back({c, reason_for(c, settings)});
    }
  }
  return untried;
}

/// Of those who fell at the last rule the ones nearest to the winner, and how far off they are.
void add_runners_up(Explanation& explanation, textio::detection::RuleStep const& last,
                    std::size_t const winner) {
  auto const place = std::ranges::find(last.seen, winner) - last.seen.begin();
  double const winning = last.measures[static_cast<std::size_t>(place)];
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < last.seen.size(); ++i) {
    double const distance = std::abs(last.measures[i] - winning);
    if (last.seen[i] == winner || distance > nearest) {
      continue;
    }
    if (distance < nearest) {
      explanation.runners_up.clear();
      nearest = distance;
    }
    explanation.runners_up.push_back(last.seen[i]);
  }
  if (std::isfinite(nearest)) {
    explanation.margin = nearest;
  }
}

/// The decision again, with the winner's delimiter (the blank, for columns that blanks separate)
/// in the place of the thousands mark, which is never a delimiter.
std::optional<Finding> find_without_winner(Answer const& answer, Settings const& settings) {
  auto const& mark = settings.parsing.thousands_separator;
  bool const place_is_taken = !mark.empty() && can_be_delimiter(mark.front());
  bool const found_freely = !settings.layout && answer.library->finding.report &&
                            answer.library->finding.report->outcome == Outcome::Candidate;
  if (place_is_taken || !found_freely) {
    return std::nullopt;
  }
  auto const& strategy = *answer.library->finding.strategy;
  auto parsing = settings.parsing;
  parsing.thousands_separator = strategy.mode() == StrategyMode::Delimited
                                    ? strategy.options().delimiters.front()
                                    : std::u16string(u" ");
  Finding finding = detect_layout(parsing, settings, answer.sample);
  finding.strategy->valuation();
  return finding;
}

}  // namespace

Explanation explain_answer(Answer const& answer, Settings const& settings) {
  Explanation explanation;
  if (!answer.library->finding.report) {
    return explanation;
  }
  auto const& report = *answer.library->finding.report;
  explanation.untried = untried_characters(answer, settings);
  if (report.winner && !report.steps.empty()) {
    add_runners_up(explanation, report.steps.back(), *report.winner);
  }
  explanation.without_winner = find_without_winner(answer, settings);
  return explanation;
}

}  // namespace cli
