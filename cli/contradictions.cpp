// SPDX-License-Identifier: MIT

#include "cli/contradictions.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "cli/usage_error.hpp"

namespace cli {

namespace {

using textimport::Layout;
using textimport::Request;

constexpr std::string_view one_meaning = "one character cannot mean both";

/// An option and its value as they were typed: --layout lines.
std::string typed(Arguments const& arguments, Option const option) {
  return flag(option) + " " + arguments.value(option);
}

/// The same, or what holds where the option is not given.
std::string typed_or(Arguments const& arguments, Option const option, std::string_view usual) {
  return arguments.has(option) ? typed(arguments, option) : std::string(usual);
}

[[noreturn]] void refuse(std::string const& first, std::string const& second,
                         std::string_view const why) {
  throw UsageError(fmt::format("{} contradicts {}: {}", first, second, why));
}

/// What names a layout: --layout, --delimiter or --widths.
Option layout_option(Arguments const& arguments) {
  for (Option const option : {Option::Layout, Option::Delimiter}) {
    if (arguments.has(option)) {
      return option;
    }
  }
  return Option::Widths;
}

void check_layout(Arguments const& arguments, Request const& request) {
  bool const delimiter = arguments.has(Option::Delimiter);
  bool const widths = arguments.has(Option::Widths);
  if (delimiter && widths) {
    refuse("--delimiter", "--widths", "give one of them");
  }
  if (delimiter && request.layout && request.layout != Layout::Delimited) {
    refuse("--delimiter", typed(arguments, Option::Layout), "only delimited text has delimiters");
  }
  if (widths && request.layout && request.layout != Layout::FixedWidth) {
    refuse("--widths", typed(arguments, Option::Layout), "only fixed-width text has widths");
  }
}

/// Runs of blanks leave no choice.
void check_rules_for_blanks(Arguments const& arguments) {
  std::string const space_aligned = "--layout space-aligned";
  if (arguments.has(Option::Consecutive) && arguments.value(Option::Consecutive) != "join") {
    refuse(typed(arguments, Option::Consecutive), space_aligned, "a run of blanks counts as one");
  }
  for (Option const rule : {Option::Leading, Option::Trailing}) {
    if (arguments.has(rule) && arguments.value(rule) != "ignore") {
      refuse(typed(arguments, rule), space_aligned, "blanks around a line make no fields");
    }
  }
}

/// Rules for delimiters and for columns, where the layout has none of them.
void check_rules(Arguments const& arguments, Request const& request) {
  auto const layout = implied_layout(request);
  if (!layout) {
    return;
  }
  std::string const named = flag(layout_option(arguments));
  bool const has_delimiters = layout == Layout::Delimited || layout == Layout::SpaceAligned;
  for (Option const rule : {Option::Consecutive, Option::Leading, Option::Trailing}) {
    if (arguments.has(rule) && !has_delimiters) {
      refuse(typed(arguments, rule), named, "this layout has no delimiters");
    }
  }
  if (arguments.has(Option::PartialField) && layout != Layout::FixedWidth) {
    refuse(typed(arguments, Option::PartialField), named, "this layout has no column widths");
  }
  if (layout == Layout::SpaceAligned) {
    check_rules_for_blanks(arguments);
  }
}

/// Lines of names and of data that would be in each other's place.
void check_lines(Arguments const& arguments, Request const& request) {
  std::size_t const first = request.header_lines.value_or(0);
  bool const has_names = request.name_lines && !request.name_lines->empty();
  std::size_t const last_name = has_names ? request.name_lines->back() : 0;
  if (has_names && request.header_lines && last_name >= first) {
    refuse(typed(arguments, Option::Names), typed(arguments, Option::HeaderLines),
           "names stand above the data");
  }
  if (request.last_line && request.header_lines && *request.last_line < first) {
    refuse(typed(arguments, Option::LastLine), typed(arguments, Option::HeaderLines),
           "the data would end before they begin");
  }
  if (request.last_line && has_names && *request.last_line <= last_name) {
    refuse(typed(arguments, Option::LastLine), typed(arguments, Option::Names),
           "names stand above the data");
  }
}

void check_counts(Arguments const& arguments, Request const& request) {
  bool const lines = request.layout == Layout::Lines;
  if (lines && request.header_lines.value_or(0) > 0) {
    refuse(typed(arguments, Option::HeaderLines), "--layout lines", "every line is a value");
  }
  if (!request.num_columns) {
    return;
  }
  if (lines && request.num_columns != 1U) {
    refuse(typed(arguments, Option::Columns), "--layout lines", "a line is one value");
  }
  std::size_t const widths = request.widths.size();
  if (widths > 0 && widths != request.num_columns) {
    refuse(typed(arguments, Option::Columns), typed(arguments, Option::Widths),
           fmt::format("these are {} widths", widths));
  }
}

/// Marks of numbers and quotes that would have two meanings.
void check_marks(Arguments const& arguments, Request const& request) {
  auto const& values = request.values;
  char16_t const decimal_mark = values.decimal_mark.value_or(u'.');
  if (values.thousands_mark == decimal_mark) {
    refuse(typed(arguments, Option::ThousandsMark),
           typed_or(arguments, Option::DecimalMark, "the decimal mark (a full stop by default)"),
           "give another --decimal-mark");
  }
  char16_t const quote = request.quote.value_or(u'"');
  std::string const quoted =
      typed_or(arguments, Option::Quote, "the quote character (a quotation mark by default)");
  for (Option const mark : {Option::DecimalMark, Option::ThousandsMark}) {
    auto const& character =
        mark == Option::DecimalMark ? values.decimal_mark : values.thousands_mark;
    // An apostrophe stands between thousands and around other fields.
    if (character && character == quote && quote != u'\0' && quote != u'\'') {
      refuse(typed(arguments, mark), quoted, one_meaning);
    }
  }
}

/// An escape that means something else, too. A quote in front of a quote is a doubled one.
void check_escape(Arguments const& arguments, Request const& request) {
  if (request.escape.value_or(0) == 0) {
    return;
  }
  std::string const escape = typed(arguments, Option::Escape);
  std::u16string const text(1, *request.escape);
  if (std::ranges::find(request.delimiters, text) != request.delimiters.end()) {
    refuse(escape, "--delimiter", one_meaning);
  }
  if (request.escape == request.quote.value_or(u'"')) {
    refuse(escape,
           typed_or(arguments, Option::Quote, "the quote character (a quotation mark by default)"),
           "a doubled quote stands for one without it");
  }
}

/// Delimiters that mean something else, too.
void check_delimiters(Arguments const& arguments, Request const& request) {
  auto const is_delimiter = [&](std::u16string const& text) {
    return std::ranges::find(request.delimiters, text) != request.delimiters.end();
  };
  auto const is_mark = [&](std::optional<char16_t> const& mark) {
    return mark && is_delimiter(std::u16string(1, *mark));
  };
  if (std::ranges::any_of(request.excluded_delimiters, is_delimiter)) {
    refuse("--delimiter", "--exclude-delimiter", "both name the same text");
  }
  if (is_mark(request.quote.value_or(u'"'))) {
    refuse("--delimiter",
           typed_or(arguments, Option::Quote, "the quote character (a quotation mark by default)"),
           "give --quote none or another one");
  }
  if (is_mark(request.values.decimal_mark)) {
    refuse("--delimiter", typed(arguments, Option::DecimalMark), one_meaning);
  }
  if (is_mark(request.values.thousands_mark)) {
    refuse("--delimiter", typed(arguments, Option::ThousandsMark), one_meaning);
  }
  std::vector<std::u16string> const endings =
      request.line_endings.empty() ? textimport::SourceFormat().line_endings : request.line_endings;
  if (std::ranges::any_of(endings, is_delimiter)) {
    refuse("--delimiter",
           typed_or(arguments, Option::LineEnding, "the line endings (LF, CRLF and CR by default)"),
           "give another --line-ending");
  }
}

void check_inputs(Arguments const& arguments) {
  auto const& operands = arguments.operands;
  if (arguments.has(Option::FilesFrom) && !operands.empty()) {
    refuse("--files0-from", operands.front(), "name the files in one place");
  }
  if (arguments.has(Option::Save) && (operands.size() > 1 || arguments.has(Option::FilesFrom))) {
    refuse("--save",
           arguments.has(Option::FilesFrom) ? "--files0-from"
                                            : fmt::format("{} files", operands.size()),
           "it writes about one");
  }
  bool const is_input_read = operands.empty() || std::ranges::find(operands, "-") != operands.end();
  if (arguments.has(Option::Format) && arguments.value(Option::Format) == "-" && is_input_read) {
    refuse("--format -", "standard input as the text", "name a file");
  }
}

void check_output(Arguments const& arguments) {
  for (Option const option : {Option::Oneline, Option::Save}) {
    if (arguments.has(option) && arguments.command != Command::Detect) {
      throw UsageError(fmt::format("explain has no option {}: it belongs to detect", flag(option)));
    }
  }
  for (Option const other : {Option::Json, Option::Rows}) {
    if (arguments.has(Option::Oneline) && arguments.has(other)) {
      refuse("--oneline", flag(other), "give one of them");
    }
  }
}

}  // namespace

void check_contradictions(Arguments const& arguments, Request const& request) {
  check_layout(arguments, request);
  check_rules(arguments, request);
  check_lines(arguments, request);
  check_counts(arguments, request);
  check_marks(arguments, request);
  check_escape(arguments, request);
  check_delimiters(arguments, request);
  if (arguments.has(Option::Library) && arguments.has(Option::ExcludeDelimiter)) {
    refuse(flag(Option::Library), typed(arguments, Option::ExcludeDelimiter),
           "the library decides by itself which delimiters there are");
  }
  check_inputs(arguments);
  check_output(arguments);
}

}  // namespace cli
