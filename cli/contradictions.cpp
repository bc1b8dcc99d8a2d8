// SPDX-License-Identifier: MIT

#include "cli/contradictions.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "cli/usage_error.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

/// An option and its value as they were typed: --layout lines.
std::string typed(Arguments const& arguments, Option const option) {
  return flag(option) + " " + arguments.given.at(option).front();
}

[[noreturn]] void refuse(std::string const& first, std::string const& second,
                         std::string_view const why) {
  throw usage_error(fmt::format("{} contradicts {}: {}", first, second, why));
}

/// What names a layout: --delimiter, --widths or --layout.
Option layout_option(Arguments const& arguments) {
  for (Option const option : {Option::Layout, Option::Delimiter}) {
    if (arguments.has(option)) {
      return option;
    }
  }
  return Option::Widths;
}

void check_layout(Arguments const& arguments, Settings const& settings) {
  bool const delimiter = arguments.has(Option::Delimiter);
  bool const widths = arguments.has(Option::Widths);
  if (delimiter && widths) {
    refuse("--delimiter", "--widths", "give one of them");
  }
  if (delimiter && settings.layout && settings.layout != StrategyMode::Delimited) {
    refuse("--delimiter", typed(arguments, Option::Layout), "only delimited text has delimiters");
  }
  if (widths && settings.layout && settings.layout != StrategyMode::FixedWidth) {
    refuse("--widths", typed(arguments, Option::Layout), "only fixed-width text has widths");
  }
}

/// Rules for delimiters and for columns, where the layout has none of them.
void check_rules(Arguments const& arguments, Settings const& settings) {
  auto const layout = implied_layout(settings);
  if (!layout) {
    return;
  }
  std::string const named = flag(layout_option(arguments));
  bool const delimited = layout == StrategyMode::Delimited;
  bool const aligned = layout == StrategyMode::SpaceAligned;
  for (Option const rule : {Option::Consecutive, Option::Leading, Option::Trailing}) {
    if (arguments.has(rule) && !delimited && !aligned) {
      refuse(typed(arguments, rule), named, "this layout has no delimiters");
    }
  }
  if (arguments.has(Option::PartialField) && layout != StrategyMode::FixedWidth) {
    refuse(typed(arguments, Option::PartialField), named, "this layout has no column widths");
  }
  if (!aligned) {
    return;
  }
  std::string const space_aligned = "--layout space-aligned";
  if (arguments.has(Option::Consecutive) && settings.parsing.consecutive_delimiters_rule !=
                                                textio::enums::ConsecutiveDelimitersRule::Join) {
    refuse(typed(arguments, Option::Consecutive), space_aligned, "a run of blanks counts as one");
  }
  for (Option const rule : {Option::Leading, Option::Trailing}) {
    if (arguments.has(rule) && arguments.given.at(rule).front() != "ignore") {
      refuse(typed(arguments, rule), space_aligned, "blanks around a line make no fields");
    }
  }
}

void check_counts(Arguments const& arguments, Settings const& settings) {
  auto const& parsing = settings.parsing;
  bool const lines = settings.layout == StrategyMode::LineReader;
  if (lines && !parsing.detect_header_lines && parsing.header_lines > 0) {
    refuse(typed(arguments, Option::HeaderLines), "--layout lines", "every line is a value");
  }
  if (parsing.ignore_num_variables) {
    return;
  }
  if (lines && parsing.num_variables != 1) {
    refuse(typed(arguments, Option::Columns), "--layout lines", "a line is one value");
  }
  std::size_t const widths = parsing.column_widths.size();
  if (widths > 0 && widths != parsing.num_variables) {
    refuse(typed(arguments, Option::Columns), typed(arguments, Option::Widths),
           fmt::format("these are {} widths", widths));
  }
}

/// Two options that would give one character two meanings.
void check_characters(Arguments const& arguments, Settings const& settings) {
  auto const& parsing = settings.parsing;
  std::u16string const decimal_mark(1, parsing.decimal_separator);
  if (parsing.thousands_separator == decimal_mark) {
    refuse(typed(arguments, Option::ThousandsMark),
           arguments.has(Option::DecimalMark) ? typed(arguments, Option::DecimalMark)
                                              : "the decimal mark (a full stop by default)",
           "give another --decimal-mark");
  }
  auto const is_delimiter = [&](std::u16string const& text) {
    return std::ranges::find(parsing.delimiters, text) != parsing.delimiters.end();
  };
  constexpr std::string_view one_meaning = "one character cannot mean both";
  if (!parsing.quote_characters.empty() && is_delimiter(parsing.quote_characters)) {
    refuse("--delimiter",
           arguments.has(Option::Quote) ? typed(arguments, Option::Quote)
                                        : "the quote character (a quotation mark by default)",
           "give --quote none or another one");
  }
  if (arguments.has(Option::DecimalMark) && is_delimiter(decimal_mark)) {
    refuse("--delimiter", typed(arguments, Option::DecimalMark), one_meaning);
  }
  if (arguments.has(Option::ThousandsMark) && is_delimiter(parsing.thousands_separator)) {
    refuse("--delimiter", typed(arguments, Option::ThousandsMark), one_meaning);
  }
  for (std::u16string const& ending : parsing.line_endings) {
    if (is_delimiter(ending)) {
      refuse("--delimiter",
             arguments.has(Option::LineEnding) ? typed(arguments, Option::LineEnding)
                                               : "the line endings (LF, CRLF and CR by default)",
             "give another --line-ending");
    }
  }
}

}  // namespace

std::optional<StrategyMode> implied_layout(Settings const& settings) {
  if (!settings.parsing.delimiters.empty()) {
    return StrategyMode::Delimited;
  }
  if (!settings.parsing.column_widths.empty()) {
    return StrategyMode::FixedWidth;
  }
  return settings.layout;
}

void check_contradictions(Arguments const& arguments, Settings const& settings) {
  check_layout(arguments, settings);
  check_rules(arguments, settings);
  check_counts(arguments, settings);
  check_characters(arguments, settings);
  if (arguments.has(Option::FilesFrom) && !arguments.operands.empty()) {
    refuse("--files0-from", arguments.operands.front(), "name the files in one place");
  }
}

}  // namespace cli
