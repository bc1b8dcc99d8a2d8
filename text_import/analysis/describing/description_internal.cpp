// SPDX-License-Identifier: MIT
//
// One object a reading. First the lines of the data, then what stands around them, then the columns
// and what they have in common.
#include "text_import/analysis/describing/description_internal.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/describing/columns_internal.hpp"
#include "text_import/analysis/describing/given_region_internal.hpp"
#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/describing/line_roles_internal.hpp"
#include "text_import/analysis/describing/named_types_internal.hpp"
#include "text_import/analysis/describing/names_internal.hpp"
#include "text_import/analysis/describing/region_rules_internal.hpp"
#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

Origin given_or(bool const is_given, Origin const otherwise) {
  return is_given ? Origin::Given : otherwise;
}

bool has_blanks_around(Reading const& r, HeaderRows const& rows) {
  auto const& fields = *r.strategy->field_array();
  for (std::size_t i = rows.first_data; i <= rows.last_data; ++i) {
    for (textio::Field const& field : fields.record(i)) {
      if (trimmed(field.view()).size() != field.length()) {
        return true;
      }
    }
  }
  return false;
}

class Describer {
 public:
  Describer(Task const& task, LineIndex const& lines)
      : task_(task), lines_(lines), given_(find_given_region(task, lines)) {
    said_.start_is_missing = given_.start_is_missing;
    format().source = task.source;
    bool const is_given = task.request.header_lines || task.request.format;
    format().region.start.origin = given_or(is_given, Origin::Found);
    bool const is_saved = task.request.format.has_value();
    format().region.end.origin = given_or(is_saved || task.request.last_line, Origin::Found);
    format().region.names_origin = given_or(is_saved || task.request.name_lines, Origin::Found);
  }

  Description describe_table(Reading const& r, Hypothesis const& hypothesis) {
    set_layout(r);
    set_quoting(r.quote, hypothesis.quotes_are_ordinary || hypothesis.quote != 0);
    set_syntax(r.syntax, hypothesis.syntax);
    set_comments(r.strategy->options().comment_style, !hypothesis.comment_markers.empty());
    bool const is_behind_all =
        given_.first && (r.records.empty() || r.records.back().line < *given_.first);
    if (r.block.regular == 0 || is_behind_all) {  // no table, yet the caller says how to read it
      set_columns(std::vector<DescribedColumn>(std::max<std::size_t>(r.block.columns, 1)));
      format().region.first_line = given_.first.value_or(0);
      format().region.end_line = lines_.count();
    } else {
      describe_rows(r);
    }
    set_marks();
    return finish(r.strategy->field_array()->num_records());
  }

  Description describe_list() {
    format().layout.layout = Layout::Lines;
    format().layout.origin = given_or(task_.layout.has_value(), Origin::Found);
    set_rules();
    set_quoting(quote_of(task_.parsing), false);
    set_comments(task_.parsing.comment_style, false);
    std::size_t const first = first_of_list();
    std::size_t const end = given_.end.value_or(without_blank_end(first));
    auto column = describe_lines(lines_, first, end, ValueGrammar(u'"', values()), given_columns());
    format().region.first_line = first;
    bool const may_have_names =
        first > 0 && (given_.name_lines ? !given_.name_lines->empty() : !given_.first.has_value());
    std::vector<std::u16string> names;
    if (may_have_names) {
      names.emplace_back(unquoted(lines_[first - 1], format().quoting.quote));
      format().region.name_lines.push_back(first - 1);
      said_.lines.push_back({first - 1, LineRole::Names});
    }
    set_columns({std::move(column)});
    set_names(format().columns, std::move(names));
    if (!task_.goes_on) {
      format().region.end_line = end;
      for (std::size_t line = end; line < lines_.count(); ++line) {
        said_.lines.push_back({line, LineRole::Blank});
      }
    }
    set_marks();
    return finish(end - std::min(first, end));
  }

 private:
  [[nodiscard]] Format& format() { return said_.format; }

  [[nodiscard]] std::vector<Column> given_columns() const {
    return task_.request.format ? task_.request.format->columns : std::vector<Column>();
  }

  [[nodiscard]] std::size_t without_blank_end(std::size_t const first) const {
    std::size_t end = lines_.count();
    while (end > first && trimmed(lines_[end - 1]).empty()) {
      --end;
    }
    return end;
  }

  [[nodiscard]] ValueRequest const& values() const { return task_.request.values; }

  /// Rules that the caller did not set are the usual ones for data, not those of sampling.
  void set_rules() {
    LayoutFormat& layout = format().layout;
    auto const& parsing = task_.parsing;
    layout.whitespace = parsing.whitespace;
    layout.empty_lines = parsing.empty_lines;
    layout.partial_fields = parsing.partial_field_rule;
    if (layout.layout == Layout::SpaceAligned) {
      layout.consecutive_delimiters = textio::enums::ConsecutiveDelimitersRule::Join;
      layout.leading_delimiters = textio::enums::LeadingDelimitersRule::Ignore;
      layout.trailing_delimiters = textio::enums::TrailingDelimitersRule::Ignore;
    } else if (layout.layout == Layout::Delimited) {
      layout.consecutive_delimiters = parsing.consecutive_delimiters_rule;
      layout.leading_delimiters = parsing.leading_delimiters_rule;
      layout.trailing_delimiters = parsing.trailing_delimiters_rule;
    }
  }

  void set_layout(Reading const& r) {
    LayoutFormat& layout = format().layout;
    layout.layout = r.layout;
    layout.origin = given_or(task_.layout.has_value(), Origin::Found);
    layout.delimiters_origin = given_or(!task_.request.delimiters.empty(), Origin::Found);
    layout.widths_origin = given_or(!task_.request.widths.empty(), Origin::Found);
    if (r.layout == Layout::Delimited) {
      layout.delimiters = r.strategy->options().delimiters;
    } else if (r.layout == Layout::FixedWidth) {
      layout.widths = r.strategy->options().column_widths;
    }
    set_rules();
  }

  void set_quoting(char16_t const quote, bool const is_found) {
    QuotingFormat& quoting = format().quoting;
    quoting.quote = quote;
    quoting.escape_kind = quote == 0 ? QuoteEscape::None : QuoteEscape::Doubled;
    quoting.origin =
        given_or(task_.request.quote.has_value(), is_found ? Origin::Found : Origin::Default);
  }

  void set_syntax(LineSyntax const& syntax, LineSyntax const& guessed) {
    QuotingFormat& quoting = format().quoting;
    format().region.has_outer_bars = syntax.has_outer_bars;
    format().region.has_rulers = syntax.has_rulers;
    format().comments.at_line_ends = syntax.has_end_comments;
    quoting.behind_blanks = syntax.quotes_behind_blanks;
    if (syntax.escape != 0) {
      quoting.escape_kind = QuoteEscape::Character;
      quoting.escape = syntax.escape;
    }
    bool const is_found = guessed.escape != 0 || guessed.quotes_behind_blanks;
    if (is_found && quoting.origin == Origin::Default) {
      quoting.origin = Origin::Found;
    }
  }

  void set_comments(std::vector<std::u16string> const& markers, bool const is_found) {
    CommentFormat& comments = format().comments;
    comments.markers = markers;
    comments.origin = given_or(task_.request.comment_markers.has_value(),
                               is_found ? Origin::Found : Origin::Default);
  }

  void describe_rows(Reading const& r) {
    bool const sees_end = !task_.goes_on && r.records.size() < task_.request.records;
    LineRoles around = decide_roles(r, lines_, given_, sees_end);
    if (around.num_columns > r.block.columns) {
      Reading wider = r;
      wider.block.columns = around.num_columns;
      describe_lines_of(wider, decide_roles(wider, lines_, given_, sees_end), sees_end);
    } else {
      describe_lines_of(r, std::move(around), sees_end);
    }
  }

  void describe_lines_of(Reading const& r, LineRoles around, bool const sees_end) {
    HeaderRows const& rows = around.rows;
    said_.table_certainty = around.certainty;
    said_.open_parts = std::move(around.open_parts);
    if (r.layout == Layout::Delimited && !lines_.held_of(u" ").empty()) {
      format().layout.has_blanks_around_delimiters = has_blanks_around(r, rows);
    }
    set_columns(describe_columns(r, rows, lines_, given_columns()));
    format().columns.back().is_rest_of_line = r.syntax.rest_of_line > 0;
    set_names(format().columns, std::move(around.names));
    format().region.name_lines = std::move(around.name_lines);
    format().region.first_line = around.data_starts_at;
    place(r, around.data_ends_at);
    said_.lines = std::move(around.lines);
    said_.line_reasons = std::move(around.reasons);
    format().region.group_lines = std::move(around.group_lines);
    format().region.total_lines = std::move(around.total_lines);
    if (sees_end || given_.end) {
      format().region.end_line = given_.end.value_or(around.data_ends_at);
    } else {
      std::erase_if(said_.lines,
                    [&](NotedLine const& noted) { return noted.line >= around.data_ends_at; });
    }
  }

  /// Sets what a fixed width says of the places of columns.
  void place(Reading const& r, std::size_t const end) {
    if (r.layout != Layout::FixedWidth) {
      return;
    }
    auto const& widths = format().layout.widths;
    std::size_t const first = format().region.first_line;
    place_columns(format().columns, widths, lines_, first, end, task_.source.encoding);
    if (task_.request.widths.empty()) {
      return;
    }
    std::size_t units = 0;
    for (std::size_t const width : widths) {
      units += std::min(width, lines_.text().size() - std::min(units, lines_.text().size()));
    }
    for (std::size_t line = first; line < end; ++line) {
      std::size_t const filled = lines_[line].find_last_not_of(u" \t") + 1;
      said_.units_left_over = std::max(said_.units_left_over, filled - std::min(filled, units));
    }
  }

  void set_columns(std::vector<DescribedColumn> columns) {
    for (DescribedColumn& described : columns) {
      format().columns.push_back(std::move(described.column));
      said_.columns.push_back(described.counts);
      said_.column_certainties.push_back(described.certainty);
      possible_epochs_.push_back(described.possible_epoch);
    }
    set_names(format().columns, {});
  }

  void set_marks() {
    ValueRequest const& values = task_.request.values;
    MarkFormat& marks = format().marks;
    char16_t const found = common_decimal_mark(format().columns);
    marks.decimal_mark = values.decimal_mark.value_or(found == 0 ? u'.' : found);
    marks.decimal_mark_origin =
        given_or(values.decimal_mark.has_value(), found == 0 ? Origin::Default : Origin::Found);
    marks.thousands_mark = values.thousands_mark.value_or(u'\0');
    marks.thousands_mark_origin = given_or(values.thousands_mark.has_value(), Origin::Default);
    marks.missing_words = values.missing_words.value_or(marks.missing_words);
    marks.missing_words_origin = given_or(values.missing_words.has_value(), Origin::Default);
  }

  /// The line behind the name of a list: a text on top of lines that are all more than text.
  [[nodiscard]] std::size_t first_of_list() const {
    if (given_.first) {
      return *given_.first;
    }
    if (given_.name_lines) {
      return given_.name_lines->empty() ? 0
                                        : std::min(given_.name_lines->back() + 1, lines_.count());
    }
    if (lines_.count() < 2) {
      return 0;
    }
    ValueGrammar const grammar(quote_of(task_.parsing), values());
    ValueType const type = describe_lines(lines_, 1, lines_.count(), grammar, {}).column.type;
    bool const has_values = type != ValueType::Text && type != ValueType::Empty;
    bool const is_value = is_typed(grammar.look_at(lines_[0]).shape);
    return has_values && !is_value ? 1 : 0;
  }

  Description finish(std::size_t const num_records) {
    Region& region = format().region;
    CommentFormat& comments = format().comments;
    if (num_records == 0) {
      format().columns.clear();
      said_.columns.clear();
      said_.column_certainties.clear();
    }
    settle_by_names(format().columns, possible_epochs_);
    if (!comments.markers.empty() && !comments.markers.front().empty()) {
      std::size_t const end = region.end_line.value_or(lines_.count());
      for (std::size_t line = region.first_line; line < end && !comments.between_data; ++line) {
        comments.between_data = lines_[line].starts_with(comments.markers.front());
      }
    }
    if (task_.request.format) {
      region.start = task_.request.format->region.start;
      region.end = task_.request.format->region.end;
      region.start.origin = Origin::Given;
      region.end.origin = Origin::Given;
    } else {
      derive_rules(region, lines_, !region.end_line);
    }
    said_.repeated_names = repeated_names(format().columns);
    return std::move(said_);
  }

  Task const& task_;
  LineIndex const& lines_;
  GivenRegion given_;
  Description said_;
  std::vector<EpochUnit> possible_epochs_;
};

}  // namespace

Description describe_table(Reading const& r, Hypothesis const& hypothesis, Task const& task,
                           LineIndex const& lines) {
  return Describer(task, lines).describe_table(r, hypothesis);
}

Description describe_list(Task const& task, LineIndex const& lines) {
  return Describer(task, lines).describe_list();
}

}  // namespace textimport::analysis
