// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/table_lines_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// More columns say nothing that these do not.
constexpr std::size_t most_columns = 24;

bool is_ruler(view const line) {
  view const text = trimmed(line);
  if (splitting::is_ruler(text)) {
    return true;
  }
  return text.size() >= 3 && text.find_first_not_of(u"-=_+|:;,*~# \t") == view::npos &&
         (text.find(u"---") != view::npos || text.find(u"===") != view::npos ||
          text.find(u"___") != view::npos || text.find(u"***") != view::npos ||
          text.find(u"~~~") != view::npos || text.find(u"- -") != view::npos ||
          text.find(u"-- --") != view::npos);
}

bool is_separator_line(view const line) {
  return line.size() >= 4 && (line.starts_with(u"sep=") || line.starts_with(u"SEP="));
}

bool is_comment(view const line, textio::parser::options const& parsing) {
  return !parsing.comment_style.empty() && !parsing.comment_style.front().empty() &&
         line.starts_with(parsing.comment_style.front());
}

/// A number with something around it that is no part of numbers: "(800.10)", "7856 b", "12.5*",
/// "20G". Other letters stand apart from it: "5s" is no number.
bool is_decorated_number(view text) {
  std::size_t const start = text.find_first_not_of(u"($<>~+-\u20AC\u00A3 ");
  if (start == view::npos || !textio::platform::is_digit(text[start])) {
    return false;
  }
  text.remove_prefix(start);
  std::size_t digits = 0;
  std::size_t others = 0;
  char16_t last = 0;
  for (char16_t const c : text) {
    bool const is_digit = textio::platform::is_digit(c);
    bool const is_size = view(u"KMGT").find(c) != view::npos;
    if (textio::platform::is_letter(c) && textio::platform::is_digit(last) && !is_size) {
      return false;
    }
    digits += is_digit ? 1U : 0U;
    others += is_digit || c == u'.' || c == u',' || c == u' ' ? 0U : 1U;
    last = c;
  }
  return others <= 2 && others <= digits;
}

CellKind kind_of(view const text, ValueShape const shape) {
  switch (shape) {
    case ValueShape::Empty:
      return CellKind::Empty;
    case ValueShape::Missing:
      return CellKind::Missing;
    case ValueShape::Integer:
    case ValueShape::Real:
    case ValueShape::ComplexNumber:
    case ValueShape::Hexadecimal:
    case ValueShape::Binary:
      return CellKind::Number;
    case ValueShape::Date:
    case ValueShape::DateTime:
    case ValueShape::Duration:
      return CellKind::Time;
    case ValueShape::Boolean:
      return CellKind::Boolean;
    default:
      return is_decorated_number(text) ? CellKind::Number : CellKind::Text;
  }
}

}  // namespace

TableLines::TableLines(Reading const& r, LineIndex const& lines, bool const is_open)
    : reading_(r),
      index_(lines),
      is_open_(is_open),
      columns_(r.block.columns),
      columns_seen_(std::min(r.block.columns, most_columns)) {
  lines_.reserve(r.records.size());
  cells_.reserve(r.records.size() * columns_seen_);
  if (r.syntax.has_rulers && !r.records.empty()) {
    add_rulers(0, 0, r.records.front().line);
  }
  for (std::size_t i = 0; i < r.records.size(); ++i) {
    std::size_t const first = r.records[i].line;
    std::size_t const next = i + 1 < r.records.size() ? r.records[i + 1].line : lines.count();
    if (first < lines.count()) {
      std::size_t const end = r.syntax.has_rulers ? first_ruler(first + 1, next) : next;
      add_record(i, std::max(end, first + 1));
      add_rulers(i, end, next);
    }
  }
}

/// The first line of these that is drawn; `end` without one.
std::size_t TableLines::first_ruler(std::size_t line, std::size_t const end) const {
  while (line < end && !splitting::is_ruler(trimmed(index_[line]))) {
    ++line;
  }
  return std::min(line, end);
}

/// Lines that are no records, because they are drawn or blank.
void TableLines::add_rulers(std::size_t const record, std::size_t const first,
                            std::size_t const end) {
  for (std::size_t line = first; line < end; ++line) {
    TableLine& added = lines_.emplace_back();
    added.line = line;
    added.end = line + 1;
    added.record = record;
    added.first_cell = cells_.size();
    added.kind = trimmed(index_[line]).empty() ? LineKind::Blank : LineKind::Ruler;
  }
}

bool TableLines::is_plain(std::size_t const record) const {
  constexpr std::size_t edge = 60;
  TableBlock const& block = reading_.block;
  bool const is_inner = is_open_ && record >= block.first + edge && record + edge <= block.last;
  if (!is_inner || reading_.records[record].num_fields != columns_) {
    return false;
  }
  auto const fields = reading_.strategy->field_array()->record(record);
  auto const empty = std::ranges::count_if(
      fields, [](textio::Field const& field) { return trimmed(field.view()).empty(); });
  return static_cast<std::size_t>(empty) * 2 <= fields.size();
}

void TableLines::add_record(std::size_t const record, std::size_t const end) {
  TableLine line;
  line.line = reading_.records[record].line;
  line.end = end;
  line.record = record;
  line.num_fields = reading_.records[record].num_fields;
  line.first_cell = cells_.size();
  view const text = index_[line.line];
  if (is_plain(record)) {
    line.kind = LineKind::Plain;
  } else if (trimmed(text).empty() && line.num_fields == 0) {
    line.kind = LineKind::Blank;
  } else if (line.line == 0 && is_separator_line(text)) {
    line.kind = LineKind::Separator;
  } else if (is_ruler(text)) {
    line.kind = LineKind::Ruler;
  } else if (is_comment(text, reading_.strategy->options())) {
    line.kind = LineKind::Comment;
  } else {
    add_cells(line);
    line.kind = line.num_filled == 0 ? LineKind::Blank : LineKind::Filled;
  }
  lines_.push_back(line);
}

void TableLines::add_cells(TableLine& line) {
  auto const fields = reading_.strategy->field_array()->record(line.record);
  if (line.num_fields <= 1 || fields.empty()) {
    add_pieces(line);
    return;
  }
  for (std::size_t i = 0; i < std::min(fields.size(), columns_seen_ + 1); ++i) {
    add_cell(line, fields[i].view());
  }
}

/// The one field of a line. Where columns of fixed width would cut it anywhere, the pieces between
/// wide gaps.
void TableLines::add_pieces(TableLine& line) {
  view rest = trimmed(index_[line.line]);
  bool const is_fixed = reading_.layout == Layout::FixedWidth;
  for (std::size_t gap = is_fixed ? rest.find(u"  ") : view::npos; gap != view::npos;
       gap = rest.find(u"  ")) {
    add_cell(line, rest.substr(0, gap));
    rest = trimmed(rest.substr(gap));
  }
  add_cell(line, rest);
}

void TableLines::add_cell(TableLine& line, view const field) {
  LineCell cell;
  cell.text = reading_.values.value_of(field);
  cell.kind = kind_of(cell.text, reading_.values.look_at_type(field).shape);
  cell.is_word = cell.kind == CellKind::Text && cell.text.find(u' ') == view::npos;
  line.num_filled += cell.kind == CellKind::Empty ? 0U : 1U;
  ++line.num_cells;
  cells_.push_back(cell);
}

bool is_year(view const text) noexcept {
  constexpr std::size_t digits = 4;
  if (text.size() < digits || text.size() > 9 ||
      !std::ranges::all_of(text.substr(0, digits), textio::platform::is_digit)) {
    return false;
  }
  bool const is_in_range = text.starts_with(u"19") || text.starts_with(u"20") ||
                           text.starts_with(u"18") || text.starts_with(u"17");
  view const rest = text.substr(digits);
  if (rest.empty() || rest == u".0") {
    return is_in_range;
  }
  bool const is_span = rest.front() == u'-' || rest.front() == u'/';
  bool const has_digits = std::ranges::any_of(rest, textio::platform::is_digit);
  return is_in_range && (is_span || (!has_digits && rest.size() <= 3 && rest.front() != u'.') ||
                         rest.starts_with(u" \\"));
}

bool holds_year(view const text) noexcept {
  constexpr std::size_t digits = 4;
  for (std::size_t i = 0; i + digits <= text.size();) {
    std::size_t const run = textio::platform::leading_digits(text.substr(i));
    if (run == digits && is_year(text.substr(i, digits))) {
      return true;
    }
    i += run + 1;
  }
  return false;
}

}  // namespace textimport::analysis
