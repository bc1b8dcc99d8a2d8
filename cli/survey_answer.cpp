// SPDX-License-Identifier: MIT

#include "cli/survey_answer.hpp"

#include <algorithm>

#include "cli/contradictions.hpp"
#include "cli/physical_lines.hpp"
#include "text_format_detection/model/field_array.hpp"

namespace cli {

namespace {

using textimport::SurveyFindings;
using textimport::ValueType;
using textio::enums::ColumnType;
using textio::enums::StrategyMode;

textimport::SurveyOptions survey_options_of(Answer const& answer, Settings const& settings) {
  auto const& findings = answer.text.findings();
  textimport::SurveyOptions options;
  options.parsing = settings.parsing;
  options.types = settings.types;
  options.given.delimiter = settings.is_given(Option::Delimiter);
  options.given.widths = settings.is_given(Option::Widths);
  options.given.quote = settings.is_given(Option::Quote);
  options.given.comment = settings.is_given(Option::Comment);
  options.given.decimal_mark = settings.is_given(Option::DecimalMark);
  options.given.header_lines = !settings.parsing.detect_header_lines;
  if (auto const layout = implied_layout(settings)) {
    options.given.layout = true;
    options.layout = textimport::layout_of(*layout);
  }
  options.records = settings.records;
  options.goes_on = findings.goes_on;
  options.encoding = findings.encoding.name;
  return options;
}

ColumnType type_of(ValueType const type) {
  switch (type) {
    case ValueType::Integer:
    case ValueType::Real:
    case ValueType::ComplexNumber:
      return ColumnType::Number;
    case ValueType::Date:
      return ColumnType::Date;
    case ValueType::DateTime:
      return ColumnType::DateTime;
    case ValueType::Duration:
      return ColumnType::Duration;
    case ValueType::Hexadecimal:
      return ColumnType::Hexadecimal;
    case ValueType::Binary:
      return ColumnType::Binary;
    case ValueType::Empty:
      return ColumnType::Undecided;
    case ValueType::Boolean:
    case ValueType::Text:
      break;
  }
  return ColumnType::Text;
}

std::vector<ColumnType> types_of(SurveyFindings const& findings, Settings const& settings) {
  std::vector<ColumnType> types;
  auto const& codes = findings.strategy->column_types();
  if (types_are_bound(settings) && codes.size() == findings.columns.size()) {
    for (unsigned char const code : codes) {
      types.push_back(static_cast<ColumnType>(code));
    }
    return types;
  }
  for (auto const& column : findings.columns) {
    types.push_back(type_of(column.type));
  }
  return types;
}

/// Whether the layout is given, yet the delimiter or the widths are to be found.
bool splits_are_open(Settings const& settings) {
  bool const delimiter_is_open =
      settings.layout == StrategyMode::Delimited && !settings.is_given(Option::Delimiter);
  bool const widths_are_open =
      settings.layout == StrategyMode::FixedWidth && !settings.is_given(Option::Widths);
  return delimiter_is_open || widths_are_open;
}

/// A layout that is given and not found.
void doubt_single_column(Answer& answer, Settings const& settings) {
  if (splits_are_open(settings) && answer.column_types.size() == 1) {
    answer.survey->decided = false;
    answer.survey->confidence = 0;
    answer.survey->reason = "nothing splits the lines as the given layout asks for";
  }
}

Verdict verdict_of(Answer const& answer, Settings const& settings) {
  SurveyFindings const& findings = *answer.survey;
  if (implied_layout(settings) && !splits_are_open(settings)) {
    return Verdict::Given;
  }
  if (answer.column_types.empty()) {
    return Verdict::NoRecords;
  }
  if (!findings.decided) {
    return Verdict::Unsure;
  }
  if (!findings.winner) {
    return Verdict::NoCandidates;
  }
  return findings.candidates.size() == 1 ? Verdict::Single : Verdict::Ranked;
}

/// Where the data begin and end, from the numbers of their lines.
void place_data(Answer& answer, Settings const& settings) {
  SurveyFindings const& findings = *answer.survey;
  std::size_t const last = findings.data_ends_at.value_or(findings.data_starts_at);
  auto const lines = physical_lines(answer.sample, settings, last + 1);
  auto const begin_of = [&](std::size_t const line) {
    return line < lines.size() ? lines[line].begin : answer.sample.size();
  };
  answer.data_begin = begin_of(findings.data_starts_at);
  answer.data_end =
      findings.data_ends_at ? std::max(answer.data_begin, begin_of(last)) : answer.sample.size();
}

}  // namespace

bool types_are_bound(Settings const& settings) {
  return std::ranges::any_of(
      settings.given, [](Option const option) { return spec(option).section == Section::Values; });
}

void take_survey(Answer& answer, Settings const& settings) {
  textio::Field const sample(answer.sample);
  answer.survey = textimport::survey_text(sample, survey_options_of(answer, settings));
  SurveyFindings const& findings = *answer.survey;
  answer.strategy = findings.strategy;
  answer.strategy->valuation();
  if (answer.strategy->field_array()->num_records() > 0) {
    answer.column_types = types_of(findings, settings);
  }
  doubt_single_column(answer, settings);
  answer.decided = findings.decided;
  answer.verdict = verdict_of(answer, settings);
  if (answer.decided && columns_differ(answer.column_types.size(), settings)) {
    answer.decided = false;
    answer.verdict = Verdict::ColumnsDiffer;
  }
  place_data(answer, settings);
}

}  // namespace cli
