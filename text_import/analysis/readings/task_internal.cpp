// SPDX-License-Identifier: MIT
//
// From a request to the engine's options. A Format that is given fills the members of the request
// that nobody set, so that one set of members is all that the analysis looks at.
#include "text_import/analysis/readings/task_internal.hpp"

#include <algorithm>

#include "text_import/splitting/record_splitter_internal.hpp"

namespace textimport::analysis {

namespace {

using ostrel::io::text::typedetection::TypeAnalyzerOptions;

/// The layout of the Format, unless the request names another one.
void take_layout(Request& request, LayoutFormat const& given) {
  if (implied_layout(request).value_or(given.layout) != given.layout) {
    return;
  }
  request.layout = given.layout;
  if (request.delimiters.empty()) {
    request.delimiters = given.delimiters;
  }
  if (request.widths.empty()) {
    request.widths = given.widths;
  }
}

template <class Part>
void take(std::optional<Part>& part, Part const& given) {
  if (!part) {
    part = given;
  }
}

void take_rules(RecordRules& rules, LayoutFormat const& given) {
  take(rules.consecutive_delimiters, given.consecutive_delimiters);
  take(rules.leading_delimiters, given.leading_delimiters);
  take(rules.trailing_delimiters, given.trailing_delimiters);
  take(rules.empty_lines, given.empty_lines);
  take(rules.partial_fields, given.partial_fields);
}

void take_marks(ValueRequest& values, MarkFormat const& given) {
  if (given.decimal_mark_origin != Origin::Default) {
    take(values.decimal_mark, given.decimal_mark);
  }
  if (given.thousands_mark_origin != Origin::Default) {
    take(values.thousands_mark, given.thousands_mark);
  }
  if (given.missing_words_origin != Origin::Default) {
    take(values.missing_words, given.missing_words);
  }
}

/// The request with the members of its Format in the places that are not set.
Request merged(Request request) {
  if (!request.format) {
    return request;
  }
  Format const& given = *request.format;
  take_layout(request, given.layout);
  take_rules(request.rules, given.layout);
  take(request.whitespace, given.layout.whitespace);
  take(request.quote, given.quoting.quote);
  take(request.escape, splitting::line_syntax_of(given).escape);
  take(request.comment_markers, given.comments.markers);
  take_marks(request.values, given.marks);
  if (request.line_endings.empty()) {
    request.line_endings = given.source.line_endings;
  }
  if (!request.num_columns && !given.columns.empty()) {
    request.num_columns = given.columns.size();
  }
  return request;
}

/// The syntax of the lines of the Format, as far as the request leaves it, and the escape.
LineSyntax syntax_of(Request const& request) {
  LineSyntax syntax;
  if (request.format && request.layout == request.format->layout.layout) {
    syntax = splitting::line_syntax_of(*request.format);
    syntax.has_end_comments = syntax.has_end_comments && !request.comment_markers->empty();
  }
  syntax.escape = request.escape.value_or(u'\0');
  return syntax;
}

textio::parser::options parsing_of(Request const& request) {
  textio::parser::options parsing;
  parsing.delimiters = request.delimiters;
  parsing.column_widths = request.widths;
  if (!request.line_endings.empty()) {
    parsing.line_endings = request.line_endings;
  }
  parsing.whitespace = request.whitespace.value_or(parsing.whitespace);
  parsing.comment_style = request.comment_markers.value_or(parsing.comment_style);
  if (request.quote) {
    parsing.quote_characters = std::u16string(*request.quote == 0 ? 0 : 1, *request.quote);
  }
  if (request.num_columns) {
    parsing.num_variables = *request.num_columns;
    parsing.ignore_num_variables = false;
  }
  ValueRequest const& values = request.values;
  char16_t const decimal_mark = values.decimal_mark.value_or(u'.');
  parsing.decimal_separator = decimal_mark == 0 ? textio::end_mark : decimal_mark;
  if (values.thousands_mark.value_or(0) != 0) {
    parsing.thousands_separator = std::u16string(1, *values.thousands_mark);
  }
  parsing.missing_values = values.missing_words.value_or(parsing.missing_values);
  RecordRules const& rules = request.rules;
  parsing.consecutive_delimiters_rule =
      rules.consecutive_delimiters.value_or(parsing.consecutive_delimiters_rule);
  parsing.leading_delimiters_rule =
      rules.leading_delimiters.value_or(parsing.leading_delimiters_rule);
  parsing.trailing_delimiters_rule =
      rules.trailing_delimiters.value_or(parsing.trailing_delimiters_rule);
  parsing.empty_lines = rules.empty_lines.value_or(parsing.empty_lines);
  parsing.partial_field_rule = rules.partial_fields.value_or(parsing.partial_field_rule);
  return parsing;
}

/// Numbers are read from a copy of the value in which the mark is a full stop. A full stop that
/// stood there before is made into something that no number holds.
void set_decimal_mark(TypeAnalyzerOptions& types, char16_t const mark) {
  if (mark == u'.' || mark == 0) {
    return;
  }
  types.replace_characters = true;
  types.second_replacement_set = u".";
  types.second_replacement = u'\uFFFD';
  types.first_replacement_set = std::u16string(1, mark);
  types.first_replacement = u'.';
}

TypeAnalyzerOptions types_of(Request const& request) {
  ValueRequest const& values = request.values;
  TypeAnalyzerOptions types;
  types.whitespace = request.whitespace.value_or(types.whitespace);
  set_decimal_mark(types, values.decimal_mark.value_or(u'.'));
  if (values.thousands_mark.value_or(0) != 0) {
    types.remove_characters = true;
    types.removal_set = std::u16string(1, *values.thousands_mark);
  }
  if (values.missing_words) {
    types.use_missing_values = true;
    types.missing_values = *values.missing_words;
  }
  types.datetime_format = values.date_pattern;
  if (!values.exponent_characters.empty()) {
    types.exponent_characters = values.exponent_characters;
  }
  if (values.max_decimals) {
    types.decimal_digit_limit_set = true;
    types.decimal_digit_limit = *values.max_decimals;
  }
  if (values.leading_character != 0) {
    types.leading_character = values.leading_character;
  }
  types.embedded_numbers = values.embedded_numbers;
  types.trim_whitespace = !values.keeps_blanks;
  return types;
}

}  // namespace

bool Task::splits_are_given() const noexcept {
  if (!layout) {
    return false;
  }
  bool const delimiter_is_open = *layout == Layout::Delimited && request.delimiters.empty();
  bool const widths_are_open = *layout == Layout::FixedWidth && request.widths.empty();
  return !delimiter_is_open && !widths_are_open;
}

bool Task::excludes(std::u16string_view const delimiter) const noexcept {
  auto const is_mark = [&](std::optional<char16_t> const& mark) {
    return mark && *mark != 0 && delimiter == std::u16string_view(&*mark, 1);
  };
  return std::ranges::find(request.excluded_delimiters, delimiter) !=
             request.excluded_delimiters.end() ||
         is_mark(request.values.decimal_mark) || is_mark(request.values.thousands_mark);
}

Task make_task(TextSample const& sample, Request const& request) {
  Task task;
  task.request = merged(request);
  task.parsing = parsing_of(task.request);
  task.types = types_of(task.request);
  task.layout = implied_layout(task.request);
  task.syntax = syntax_of(task.request);
  task.source = sample.source;
  task.source.line_endings = task.parsing.line_endings;
  if (!task.request.line_endings.empty()) {
    task.source.line_endings_origin = Origin::Given;
  }
  task.goes_on = sample.goes_on;
  return task;
}

}  // namespace textimport::analysis
