// SPDX-License-Identifier: MIT
//
// A reading that is given is built by hand and scored; everything else is the selector's decision.

#include "cli/library_answer.hpp"

#include <algorithm>
#include <utility>

#include "cli/contradictions.hpp"
#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace cli {

namespace {

using textio::detection::DetectionReport;
using textio::detection::Outcome;
using textio::detection::Reason;
using textio::enums::StrategyMode;

Verdict verdict_of(Reason const reason) {
  switch (reason) {
    case Reason::DateColumns:
      return Verdict::DateColumns;
    case Reason::NoRecords:
      return Verdict::NoRecords;
    case Reason::NoCandidates:
      return Verdict::NoCandidates;
    case Reason::Single:
      return Verdict::Single;
    case Reason::Ranked:
      return Verdict::Ranked;
    case Reason::Tie:
      return Verdict::Tie;
    case Reason::NoneLeft:
      break;
  }
  return Verdict::NoneLeft;
}

/// A strategy built by hand, sampled and scored.
template <typename Strategy, typename... Argument>
std::shared_ptr<textio::GenericStrategy> evaluated(Settings const& settings,
                                                   textio::Field const& sample,
                                                   Argument&&... argument) {
  auto const strategy = std::make_shared<Strategy>(settings.parsing, settings.types,
                                                   std::forward<Argument>(argument)...);
  textio::evaluate_strategy(strategy, sample, settings.records);
  return strategy;
}

bool found_delimiter(Finding const& finding, Settings const& settings) {
  return finding.report->outcome == Outcome::Candidate &&
         finding.strategy->mode() == StrategyMode::Delimited &&
         finding.strategy->options().delimiters.front() != settings.parsing.thousands_separator;
}

/// The layout is given, the delimiter is not. When something else wins, the blank is left out,
/// without which there is nothing but delimited candidates.
Finding detect_delimiter(Settings const& settings, textio::Field const& sample) {
  Finding finding = detect_layout(settings.parsing, settings, sample.view());
  if (!found_delimiter(finding, settings)) {
    auto without_blank = settings.parsing;
    without_blank.thousands_separator = u" ";  // the mark that is never a delimiter
    finding = detect_layout(without_blank, settings, sample.view());
  }
  if (!found_delimiter(finding, settings)) {
    finding.decided = finding.verdict == Verdict::NoRecords;
    finding.strategy = evaluated<textio::DelimitedStrategy>(settings, sample, u',');
  }
  return finding;
}

/// The largest number of code units of a line.
std::size_t longest_line(textio::GenericStrategy const& line_reader) {
  std::size_t longest = 0;
  for (textio::Field const& line : line_reader.field_array()->fields()) {
    longest = std::max(longest, line.length());
  }
  return longest;
}

/// The layout is given, the widths are not. When the lines as a whole stand for one value, they
/// are one column.
Finding detect_widths(Settings const& settings, textio::Field const& sample) {
  auto parsing = settings.parsing;
  parsing.layout = textio::enums::Layout::FixedWidth;
  Finding finding = detect_layout(parsing, settings, sample.view());
  if (finding.strategy->mode() != StrategyMode::FixedWidth) {
    std::vector<std::size_t> widths{longest_line(*finding.report->line_reader)};
    finding.strategy = evaluated<textio::FixedWidthStrategy>(settings, sample, std::move(widths));
  }
  return finding;
}

Finding find(Settings const& settings, textio::Field const& sample) {
  auto const layout = implied_layout(settings);
  if (!layout) {
    return detect_layout(settings.parsing, settings, sample.view());
  }
  Finding given;
  switch (*layout) {
    case StrategyMode::Delimited:
      if (settings.parsing.delimiters.empty()) {
        return detect_delimiter(settings, sample);
      }
      given.strategy = evaluated<textio::DelimitedStrategy>(settings, sample);
      break;
    case StrategyMode::SpaceAligned:
      given.strategy = evaluated<textio::SpaceAlignedStrategy>(settings, sample);
      break;
    case StrategyMode::FixedWidth:
      if (settings.parsing.column_widths.empty()) {
        return detect_widths(settings, sample);
      }
      given.strategy = evaluated<textio::FixedWidthStrategy>(
          settings, sample, std::vector<std::size_t>(settings.parsing.column_widths));
      break;
    case StrategyMode::LineReader:
      given.strategy = evaluated<textio::LineReaderStrategy>(settings, sample);
      break;
  }
  return given;
}

std::vector<textio::enums::ColumnType> types_of(textio::GenericStrategy const& strategy) {
  std::vector<textio::enums::ColumnType> types;
  if (strategy.field_array()->num_records() > 0) {
    types.assign(strategy.num_variables(), textio::enums::ColumnType::Undecided);
  }
  auto const& codes = strategy.column_types();
  for (std::size_t column = 0; column < std::min(types.size(), codes.size()); ++column) {
    types[column] = static_cast<textio::enums::ColumnType>(codes[column]);
  }
  return types;
}

/// The number that is given, else the one that was found.
std::size_t header_lines_of(textio::GenericStrategy const& strategy, Settings const& settings) {
  if (!settings.parsing.detect_header_lines) {
    return settings.parsing.header_lines;
  }
  std::size_t const found = strategy.header_lines();
  return found == textio::unknown_count ? 0 : found;
}

}  // namespace

Finding detect_layout(textio::parser::options const& parsing, Settings const& settings,
                      std::u16string_view const sample) {
  Finding finding;
  DetectionReport report;
  textio::detection::StrategySelector selector(parsing, settings.types);
  finding.strategy = selector.pick_strategy(textio::Field(sample), settings.records, report);
  finding.verdict = verdict_of(report.reason);
  finding.decided = report.outcome != Outcome::CommaFallback;
  finding.report = std::move(report);
  return finding;
}

LibraryAnswer ask_library(std::u16string_view const sample, Settings const& settings) {
  LibraryAnswer answer{
      .finding = find(settings, textio::Field(sample)), .header_lines = 0, .column_types = {}};
  Finding& finding = answer.finding;
  finding.strategy->valuation();  // the comma fallback is not scored yet
  answer.column_types = types_of(*finding.strategy);
  answer.header_lines = header_lines_of(*finding.strategy, settings);
  if (finding.decided && columns_differ(answer.column_types.size(), settings)) {
    finding.decided = false;
    finding.verdict = Verdict::ColumnsDiffer;
  }
  return answer;
}

bool columns_differ(std::size_t const columns, Settings const& settings) {
  return !settings.parsing.ignore_num_variables && columns > 0 &&
         columns != settings.parsing.num_variables;
}

std::size_t header_length(LibraryAnswer const& answer, std::u16string_view const sample) {
  if (answer.header_lines == 0) {
    return 0;
  }
  auto const& strategy = *answer.finding.strategy;
  textio::FieldArray fields;
  return textio::read_records(strategy.options(), strategy.mode(), textio::Field(sample),
                              textio::unknown_count, answer.header_lines, fields)
      .units_consumed;
}

}  // namespace cli
