// SPDX-License-Identifier: MIT

#include "cli/preview.hpp"

#include <algorithm>

#include "cli/physical_lines.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

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

std::vector<std::u16string_view> line_texts(std::u16string_view const text,
                                            Settings const& settings) {
  std::vector<std::u16string_view> texts;
  for (PhysicalLine const& line : physical_lines(text, settings)) {
    texts.push_back(line.text);
  }
  return texts;
}

}  // namespace

textio::parser::options reading_options(Answer const& answer, Settings const& settings) {
  auto options = answer.strategy->options();
  auto const& given = settings.parsing;
  options.empty_lines = given.empty_lines;
  options.partial_field_rule = given.partial_field_rule;
  if (answer.strategy->mode() == StrategyMode::Delimited) {
    options.consecutive_delimiters_rule = given.consecutive_delimiters_rule;
    options.leading_delimiters_rule = given.leading_delimiters_rule;
    options.trailing_delimiters_rule = given.trailing_delimiters_rule;
  }
  return options;
}

Preview make_preview(Answer const& answer, Settings const& settings) {
  Preview preview;
  preview.header_lines = line_texts(answer.sample.substr(0, answer.data_begin), settings);
  preview.footer_lines = line_texts(answer.sample.substr(answer.data_end), settings);
  // For show: what the rules forbid is reported elsewhere.
  auto options = answer.strategy->options();
  auto const asked = reading_options(answer, settings);
  if (asked.empty_lines == textio::enums::EmptyLineRule::Skip) {
    options.empty_lines = asked.empty_lines;
  }
  if (asked.partial_field_rule != textio::enums::PartialFieldRule::Error) {
    options.partial_field_rule = asked.partial_field_rule;
  }
  textio::FieldArray fields;
  auto const mode = answer.strategy->mode();
  textio::read_records(options, mode, textio::Field(answer.data()), settings.rows,
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
