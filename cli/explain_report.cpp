// SPDX-License-Identifier: MIT

#include "cli/explain_report.hpp"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/explain_rules.hpp"
#include "cli/lines.hpp"
#include "cli/reasons.hpp"
#include "cli/survey_story.hpp"
#include "cli/words.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/import_error.hpp"

namespace cli {

namespace {

using textio::detection::CandidateFate;
using textio::detection::DetectionReport;
using textio::detection::RejectionClause;
using textio::detection::SampledStrategy;
using textio::enums::StrategyMode;

/// What became of a strategy, in at most 22 cells.
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

/// A reading as an answer: "comma, 6 columns, 0 header lines".
std::string reading_sentence(textio::GenericStrategy const& strategy, std::size_t const columns,
                             std::size_t const header) {
  return fmt::format("{}, {} column{}, {} header line{}", reading_name(strategy), columns,
                     columns == 1 ? "" : "s", header, header == 1 ? "" : "s");
}

std::string_view untried_text(NotTried const why) {
  switch (why) {
    case NotTried::DecimalMark:
      return "the decimal mark (--decimal-mark)";
    case NotTried::ThousandsMark:
      return "the thousands mark (--thousands-mark)";
    case NotTried::NeverDelimiter:
      return "never delimiters: quotes, brackets and signs belong to values";
    case NotTried::NotAscii:
      return "not ASCII; --delimiter reads with any text";
    case NotTried::OutsideMiddle:
      break;
  }
  return "only in the first and last lines, where titles and sums stand";
}

/// The characters that were left out for one reason, in one paragraph.
std::string untried_paragraph(Explanation const& explanation, NotTried const why,
                              std::size_t const width) {
  constexpr std::size_t most = 20;
  constexpr std::size_t left = 6;
  std::vector<std::string> names;
  std::size_t count = 0;
  for (UntriedCharacter const& untried : explanation.untried) {
    if (untried.why == why && ++count <= most) {
      std::string bytes;
      append_utf8(bytes, is_surrogate(untried.character) ? U'\uFFFD' : untried.character);
      auto const text = from_utf8(bytes);
      names.push_back(delimiter_name(*text));
    }
  }
  if (count == 0) {
    return {};
  }
  std::string const more = count > most ? fmt::format(" and {} more", count - most) : "";
  return paragraph(fmt::format("{}{}: {}", fmt::join(names, ", "), more, untried_text(why)), width,
                   left);
}

std::string characters_text(Answer const& answer, Explanation const& explanation,
                            std::size_t const width) {
  bool const none = answer.library->finding.report->sampled.empty();
  std::string text = paragraph(none ? "tried: none" : "tried: see the readings below", width);
  std::string others;
  for (NotTried const why :
       {NotTried::DecimalMark, NotTried::ThousandsMark, NotTried::NeverDelimiter,
        NotTried::NotAscii, NotTried::OutsideMiddle}) {
    others += untried_paragraph(explanation, why, width);
  }
  text += paragraph(others.empty() ? "not tried: letters and digits"
                                   : "not tried: letters and digits, and of the others",
                    width);
  return text + others;
}

/// One line of the table of candidates; `position` is empty for what is no candidate.
std::string candidate_line(std::string const& position, textio::GenericStrategy& strategy,
                           std::string_view const fate) {
  constexpr std::size_t name_cells = 17;
  auto const& score = strategy.valuation();
  std::size_t const header = score.header_lines == textio::unknown_count ? 0 : score.header_lines;
  auto const name = display_bytes(reading_name(strategy), name_cells);
  std::string line =
      fmt::format("  {:>3}  {} {:>7} {:>9} {:>7} {:>6}  {}", position, pad(name, name_cells),
                  score.num_variables, number_text(score.data_variation),
                  fmt::format("{}/{}", score.typed_columns, score.num_variables), header, fate);
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

constexpr std::string_view candidate_heading =
    "    #  reading           columns irregular   typed header  outcome\n";

std::string candidates_text(DetectionReport const& report) {
  std::string text(candidate_heading);
  for (SampledStrategy const& sampled : report.sampled) {
    std::string const position =
        sampled.candidate ? fmt::format("{}", *sampled.candidate + 1) : std::string("-");
    text += candidate_line(position, *sampled.strategy, fate_text(sampled));
  }
  return text;
}

std::string runners_up_text(DetectionReport const& report, Explanation const& explanation) {
  std::vector<std::string> names;
  constexpr std::size_t most = 4;
  for (std::size_t const candidate : explanation.runners_up) {
    if (names.size() < most) {
      names.push_back(reading_name(*report.candidates[candidate]));
    }
  }
  std::size_t const rest = explanation.runners_up.size() - names.size();
  std::string const more = rest > 0 ? fmt::format(" and {} more", rest) : "";
  std::string const margin =
      explanation.margin ? fmt::format(", by {}", number_text(*explanation.margin)) : "";
  return fmt::format("{}{} (fell at {}{})", fmt::join(names, ", "), more, report.steps.back().rule,
                     margin);
}

std::string answer_text(Answer const& answer) {
  std::string const reading =
      reading_sentence(*answer.library->finding.strategy, answer.library->column_types.size(),
                       answer.library->header_lines);
  return answer.library->finding.decided ? reading : "not decided; read as " + reading;
}

std::string without_winner_text(Finding const& finding) {
  auto const& strategy = *finding.strategy;
  std::size_t const header =
      strategy.header_lines() == textio::unknown_count ? 0 : strategy.header_lines();
  std::string const reading = reading_sentence(strategy, strategy.num_variables(), header);
  return finding.decided ? reading : fmt::format("not decided ({})", verdict_word(finding.verdict));
}

std::string summary(Answer const& answer, Settings const& settings,
                    Explanation const& explanation) {
  FactLines lines(settings.width);
  lines.add("answer", answer_text(answer));
  lines.add("why", why_library(answer, settings));
  if (!explanation.runners_up.empty()) {
    lines.add("runner-up", runners_up_text(*answer.library->finding.report, explanation));
  }
  if (explanation.without_winner) {
    bool const delimited = answer.library->finding.strategy->mode() == StrategyMode::Delimited;
    std::string const name =
        delimited ? reading_name(*answer.library->finding.strategy) : std::string("blanks");
    lines.add("else", fmt::format("without {}: {}", name,
                                  without_winner_text(*explanation.without_winner)));
  }
  return lines.text();
}

/// The library's own decision.
std::string library_story(Answer const& answer, Settings const& settings, Colors const& colors) {
  Explanation const explanation = explain_answer(answer, settings);
  std::string text = summary(answer, settings, explanation);
  if (!answer.library->finding.report) {
    text += heading("The reading that was given", colors);
    text += candidate_heading;
    return text + candidate_line("-", *answer.library->finding.strategy, "given");
  }
  DetectionReport const& report = *answer.library->finding.report;
  text += heading("First each line was read as one value", colors);
  text += candidate_heading;
  bool const dates = report.reason == textio::detection::Reason::DateColumns;
  text += candidate_line("-", *report.line_reader, dates ? "dates or times: no table" : "");
  if (dates || report.reason == textio::detection::Reason::NoRecords) {
    return text;
  }
  text += heading("Characters in the middle lines of the sample", colors);
  text += characters_text(answer, explanation, settings.width);
  text += heading("Readings that were tried; irregular must be below 1", colors);
  text += candidates_text(report);
  if (!report.steps.empty()) {
    text += heading("Rules, in their order, until one reading is left", colors);
    text += rules_text(report, settings.width);
  }
  return text;
}

}  // namespace

std::string explain_report(Answer const& answer, Settings const& settings, Colors const& colors) {
  std::string text =
      fmt::format("{}{}{}\n", colors.heading,
                  display_bytes(textimport::display_name(answer.path)).utf8, colors.reset);
  if (!answer.survey) {
    return text + library_story(answer, settings, colors);
  }
  text += survey_summary(answer, settings);
  text += heading("The library's own decision", colors);
  text += library_story(answer, settings, colors);
  return text + survey_story(answer, settings, colors);
}

}  // namespace cli
