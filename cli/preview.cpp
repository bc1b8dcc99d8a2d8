// SPDX-License-Identifier: MIT

#include "cli/preview.hpp"

#include <algorithm>
#include <utility>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

/// The line at the start of the text, which moves behind its ending.
std::u16string_view take_line(std::u16string_view& text,
                              std::vector<std::u16string> const& endings) {
  for (std::size_t pos = 0; pos < text.size(); ++pos) {
    for (std::u16string const& ending : endings) {
      if (text.substr(pos).starts_with(ending)) {
        std::u16string_view const line = text.substr(0, pos);
        text.remove_prefix(pos + ending.size());
        return line;
      }
    }
  }
  return std::exchange(text, {});
}

std::u16string_view trimmed(std::u16string_view const text, std::u16string_view const blanks) {
  auto const first = text.find_first_not_of(blanks);
  if (first == std::u16string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// A quoted value without its quotes, a doubled one inside standing for one.
std::u16string unquoted(std::u16string_view value, std::u16string_view const quotes) {
  if (quotes.empty() || value.size() < 2 || value.front() != quotes.front() ||
      value.back() != quotes.front()) {
    return std::u16string(value);
  }
  value = value.substr(1, value.size() - 2);
  std::u16string plain;
  for (std::size_t i = 0; i < value.size(); ++i) {
    plain += value[i];
    bool const doubled =
        value[i] == quotes.front() && i + 1 < value.size() && value[i + 1] == quotes.front();
    i += doubled ? 1 : 0;
  }
  return plain;
}

std::u16string cell(textio::Field const& field, StrategyMode const mode,
                    textio::parser::options const& options) {
  if (mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned) {
    return unquoted(trimmed(field.view(), options.whitespace), options.quote_characters);
  }
  return std::u16string(field.view());
}

}  // namespace

textio::parser::options reading_options(Answer const& answer, Settings const& settings) {
  auto options = answer.finding.strategy->options();
  auto const& given = settings.parsing;
  options.empty_lines = given.empty_lines;
  options.partial_field_rule = given.partial_field_rule;
  if (answer.finding.strategy->mode() == StrategyMode::Delimited) {
    options.consecutive_delimiters_rule = given.consecutive_delimiters_rule;
    options.leading_delimiters_rule = given.leading_delimiters_rule;
    options.trailing_delimiters_rule = given.trailing_delimiters_rule;
  }
  return options;
}

std::size_t header_length(Answer const& answer) {
  if (answer.header_lines == 0) {
    return 0;
  }
  textio::FieldArray fields;
  return textio::read_records(answer.finding.strategy->options(), answer.finding.strategy->mode(),
                              textio::Field(answer.sample), textio::unknown_count,
                              answer.header_lines, fields)
      .units_consumed;
}

Preview make_preview(Answer const& answer, Settings const& settings) {
  Preview preview;
  std::size_t const header = header_length(answer);
  std::u16string_view head = answer.sample.substr(0, header);
  while (!head.empty()) {
    preview.header_lines.push_back(take_line(head, settings.parsing.line_endings));
  }
  // For show: what the rules forbid is reported elsewhere.
  auto options = answer.finding.strategy->options();
  auto const asked = reading_options(answer, settings);
  if (asked.empty_lines == textio::enums::EmptyLineRule::Skip) {
    options.empty_lines = asked.empty_lines;
  }
  if (asked.partial_field_rule != textio::enums::PartialFieldRule::Error) {
    options.partial_field_rule = asked.partial_field_rule;
  }
  textio::FieldArray fields;
  auto const mode = answer.finding.strategy->mode();
  textio::read_records(options, mode, textio::Field(answer.sample.substr(header)), settings.rows,
                       textio::unknown_count, fields);
  for (std::size_t record = 0; record < std::min(fields.num_records(), settings.rows); ++record) {
    auto& row = preview.rows.emplace_back();
    for (textio::Field const& field : fields.record(record)) {
      row.push_back(cell(field, mode, options));
    }
  }
  return preview;
}

}  // namespace cli
