// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/line_roles_internal.hpp"

#include <algorithm>
#include <optional>
#include <span>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/splitting/record_splitter_internal.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

bool is_ruler(view const line) {
  view const text = trimmed(line);
  return splitting::is_ruler(text) ||
         (text.size() >= 3 && text.find_first_not_of(u"-=_+|:;,*~# \t") == view::npos &&
          text.find_first_of(u"-=_*~") != view::npos);
}

bool is_separator_line(view const line) {
  return line.size() >= 4 && (line.starts_with(u"sep=") || line.starts_with(u"SEP="));
}

bool is_comment(view const line, textio::parser::options const& parsing) {
  return !parsing.comment_style.empty() && !parsing.comment_style.front().empty() &&
         line.starts_with(parsing.comment_style.front());
}

/// The text of a field as a name: unquoted, doubled quotes made single ones, without escapes.
std::u16string name_of_field(view const field, Reading const& r) {
  view const name = unquoted(field, r.quote);
  bool const was_quoted = r.quote != 0 && trimmed(field).starts_with(r.quote);
  char16_t const escape = r.syntax.escape;
  auto plain = was_quoted ? with_single_quotes(name, r.quote, escape) : std::u16string(name);
  return escape == 0 ? plain
                     : without_escapes(plain, escape, r.quote, r.strategy->options().delimiters);
}

/// The line without a comment marker in front of it, of whatever kind.
view without_marker(view const line) {
  std::size_t const first = line.find_first_not_of(u"#%!;*/ \t");
  return first == view::npos ? view() : line.substr(first);
}

/// The fields of a text that is one record, read as the table is.
std::vector<std::u16string> split_line(Reading const& r, view const line) {
  textio::FieldArray fields;
  auto options = r.strategy->options();
  options.comment_style.clear();
  splitting::read_records(options, r.strategy->mode(), r.syntax, line, 1, fields);
  std::vector<std::u16string> texts;
  for (textio::Field const& field : fields.fields()) {
    texts.push_back(name_of_field(field.view(), r));
  }
  return texts;
}

bool are_names(std::vector<std::u16string> const& cells) {
  ValueGrammar const usual(0, {});  // quotes are taken off, and nobody says how names are written
  return std::ranges::all_of(cells, [&usual](std::u16string const& cell) {
    ValueShape const shape = usual.look_at(cell).shape;
    return shape == ValueShape::Word || shape == ValueShape::Phrase;
  });
}

/// Names in a line above the table that is no record of it, such as a commented one.
std::optional<std::vector<std::u16string>> names_above(Reading const& r, view const line) {
  for (view const text : {line, without_marker(line)}) {
    auto cells = split_line(r, text);
    if (cells.size() == r.block.columns && are_names(cells)) {
      return cells;
    }
  }
  return std::nullopt;
}

/// Names each line above the data.
class RoleReader {
 public:
  RoleReader(Reading const& r, HeaderRows const& rows, LineIndex const& lines)
      : reading_(r), rows_(rows), lines_(lines) {}

  Surroundings run() {
    place_data();
    note_names();
    for (std::size_t line = 0; line < found_.data_starts_at; ++line) {
      found_.lines.push_back({line, role_above(line)});
    }
    for (std::size_t line = found_.data_ends_at; line < lines_.count(); ++line) {
      found_.lines.push_back({line, role_below(line)});
    }
    return std::move(found_);
  }

 private:
  void place_data() {
    auto const& records = reading_.records;
    found_.data_starts_at = records[rows_.first_data].line;
    std::size_t const next = rows_.last_data + 1;
    found_.data_ends_at = next < records.size() ? records[next].line : lines_.count();
    while (found_.data_ends_at > found_.data_starts_at && is_no_data(found_.data_ends_at - 1)) {
      --found_.data_ends_at;
    }
  }

  /// Blank lines and, in a table that has them, rulers.
  [[nodiscard]] bool is_no_data(std::size_t const line) const {
    return trimmed(lines_[line]).empty() ||
           (reading_.syntax.has_rulers && splitting::is_ruler(lines_[line]));
  }

  /// The names stand in a record of the table, or in the last line above it that is no ruler.
  void note_names() {
    if (rows_.has_no_names) {
      return;
    }
    if (rows_.names) {
      first_name_line_ = reading_.records[*rows_.names].line;
      end_of_names_ = reading_.records[*rows_.names + 1].line;
      while (end_of_names_ > first_name_line_ + 1 && is_no_data(end_of_names_ - 1)) {
        --end_of_names_;
      }
      for (textio::Field const& field : reading_.strategy->field_array()->record(*rows_.names)) {
        found_.names.push_back(name_of_field(field.view(), reading_));
      }
    } else {
      find_names_above();
    }
    if (found_.names.empty()) {
      return;
    }
    found_.names.resize(reading_.block.columns);
    for (std::size_t line = first_name_line_; line < end_of_names_; ++line) {
      found_.name_lines.push_back(line);
    }
  }

  void find_names_above() {
    for (std::size_t line = found_.data_starts_at; line-- > 0;) {
      view const text = lines_[line];
      if (trimmed(text).empty() || is_ruler(text)) {
        continue;
      }
      if (auto names = names_above(reading_, text)) {
        found_.names = std::move(*names);
        first_name_line_ = line;
        end_of_names_ = line + 1;
      }
      return;
    }
  }

  [[nodiscard]] bool has_names() const { return !found_.names.empty(); }

  [[nodiscard]] LineRole role_above(std::size_t const line) const {
    view const text = lines_[line];
    if (has_names() && line >= first_name_line_ && line < end_of_names_) {
      return LineRole::Names;
    }
    if (trimmed(text).empty()) {
      return LineRole::Blank;
    }
    if (line == 0 && is_separator_line(text)) {
      return LineRole::Separator;
    }
    if (is_ruler(text)) {
      return LineRole::Ruler;
    }
    if (is_comment(text, reading_.strategy->options())) {
      return LineRole::Comment;
    }
    return has_names() && line >= end_of_names_ ? LineRole::Units : LineRole::Title;
  }

  [[nodiscard]] LineRole role_below(std::size_t const line) const {
    view const text = lines_[line];
    if (trimmed(text).empty()) {
      return LineRole::Blank;
    }
    if (splitting::is_ruler(text)) {
      return LineRole::Ruler;
    }
    return is_comment(text, reading_.strategy->options()) ? LineRole::Comment : LineRole::Footer;
  }

  Reading const& reading_;
  HeaderRows const& rows_;
  LineIndex const& lines_;
  Surroundings found_;
  std::size_t first_name_line_ = 0;
  std::size_t end_of_names_ = 0;
};

}  // namespace

Surroundings look_around(Reading const& r, HeaderRows const& rows, LineIndex const& lines) {
  return RoleReader(r, rows, lines).run();
}

}  // namespace textimport::analysis
