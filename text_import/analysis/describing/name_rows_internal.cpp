// SPDX-License-Identifier: MIT
//
// A row with as many cells as there are columns is read cell by cell. In lined up text a name may
// have blanks, or a column none: there each word goes to the column over which it stands.
#include "text_import/analysis/describing/name_rows_internal.hpp"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/splitting/record_splitter_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;
using Names = std::vector<std::u16string>;

/// The text of a field as a name: unquoted, doubled quotes made single ones, without escapes.
std::u16string name_of_field(view const field, Reading const& r) {
  view const name = unquoted(field, r.quote);
  bool const was_quoted = r.quote != 0 && trimmed(field).starts_with(r.quote);
  char16_t const escape = r.syntax.escape;
  auto plain = was_quoted ? with_single_quotes(name, r.quote, escape) : std::u16string(name);
  return escape == 0 ? plain
                     : without_escapes(plain, escape, r.quote, r.strategy->options().delimiters);
}

/// A stretch of positions in a line.
struct Stretch {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// The stretches of a line that hold no blank.
std::vector<Stretch> words_of(view const line) {
  std::vector<Stretch> words;
  std::size_t begin = line.find_first_not_of(u" \t");
  while (begin != view::npos) {
    std::size_t const end = std::min(line.find_first_of(u" \t", begin), line.size());
    words.push_back({begin, end});
    begin = line.find_first_not_of(u" \t", end);
  }
  return words;
}

/// Where the values of the columns stand in lines of data; empty when the columns do not keep to
/// places of their own, with a gap between.
std::vector<Stretch> find_places(TableLines const& lines, HeaderRows const& data) {
  constexpr std::size_t most = 50;
  Reading const& r = lines.reading();
  std::vector<Stretch> places(r.block.columns, Stretch{view::npos, 0});
  std::size_t looked_at = 0;
  for (TableLine const& line : lines.all()) {
    bool const is_row = line.record >= data.first_data && line.record <= data.last_data &&
                        line.kind == LineKind::Filled && line.num_fields == r.block.columns;
    if (!is_row || looked_at++ >= most) {
      continue;
    }
    auto const fields = r.strategy->field_array()->record(line.record);
    view const text = lines.text(line);
    for (std::size_t i = 0; i < std::min(fields.size(), places.size()); ++i) {
      view const value = trimmed(fields[i].view());
      if (!value.empty()) {
        auto const begin = static_cast<std::size_t>(value.data() - text.data());
        places[i].begin = std::min(places[i].begin, begin);
        places[i].end = std::max(places[i].end, begin + value.size());
      }
    }
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    bool const is_apart = i == 0 || places[i].begin > places[i - 1].end;
    if (places[i].end == 0 || !is_apart) {
      return {};
    }
  }
  return places;
}

/// How far two stretches are apart; negative where they overlap.
std::ptrdiff_t distance(Stretch const& a, Stretch const& b) {
  auto const from = static_cast<std::ptrdiff_t>(std::max(a.begin, b.begin));
  auto const to = static_cast<std::ptrdiff_t>(std::min(a.end, b.end));
  return from - to;
}

Names names_by_place(view const line, std::vector<Stretch> const& places) {
  Names names(places.size());
  std::size_t column = 0;
  std::optional<Stretch> last;
  for (Stretch const& word : words_of(line)) {
    bool const is_joined = last && word.begin == last->end + 1;
    std::size_t best = column;
    for (std::size_t i = column; i < places.size(); ++i) {
      if (distance(word, places[i]) < distance(word, places[best])) {
        best = i;
      }
    }
    // Behind a single blank a word that stands over no column goes on with the name before it.
    if (is_joined && distance(word, places[best]) >= 0 && !names[column].empty()) {
      best = column;
    }
    column = best;
    names[column] += names[column].empty() ? u"" : u" ";
    names[column] += line.substr(word.begin, word.end - word.begin);
    last = word;
  }
  return names;
}

class NameReader {
 public:
  NameReader(TableLines const& lines, HeaderRows const& data)
      : lines_(lines), data_(data), columns_(lines.columns()) {
    if (lines.reading().layout != Layout::Delimited) {
      places_ = find_places(lines, data);
    }
  }

  [[nodiscard]] std::size_t columns() const noexcept { return columns_; }

  /// The names of a row, column by column.
  Names read(std::size_t const row) {
    TableLine const& line = lines_.all()[row];
    Names cells = cells_of(line);
    bool const is_fixed = lines_.reading().layout == Layout::FixedWidth;
    bool const are_quoted = cells.size() + 1 == columns_ && has_quotes(line);
    if (!places_.empty() && !are_quoted && (cells.size() != columns_ || is_fixed)) {
      return names_by_place(lines_.text(line), places_);
    }
    while (cells.size() > columns_ && cells.back().empty()) {
      cells.pop_back();
    }
    if (cells.size() > columns_) {
      columns_ = std::clamp(longest_row(), columns_, cells.size());
    }
    if (cells.size() + 1 == columns_ && has_row_names(cells)) {
      cells.insert(cells.begin(), std::u16string());
    }
    cells.resize(columns_);
    return cells;
  }

 private:
  [[nodiscard]] bool has_quotes(TableLine const& line) const {
    char16_t const quote = lines_.reading().quote;
    return quote != 0 && trimmed(lines_.text(line)).front() == quote;
  }

  [[nodiscard]] Names cells_of(TableLine const& line) const {
    Names cells;
    Reading const& r = lines_.reading();
    for (textio::Field const& field : r.strategy->field_array()->record(line.record)) {
      cells.push_back(name_of_field(field.view(), r));
    }
    return cells;
  }

  /// The largest number of fields that two records of the data have.
  [[nodiscard]] std::size_t longest_row() const {
    std::size_t longest = 0;
    std::size_t second = 0;
    for (TableLine const& line : lines_.all()) {
      if (line.record < data_.first_data || line.record > data_.last_data) {
        continue;
      }
      if (line.num_fields >= longest) {
        second = longest;
        longest = line.num_fields;
      } else {
        second = std::max(second, line.num_fields);
      }
    }
    return second;
  }

  /// Row names have none above them; a last column without values has none either.
  [[nodiscard]] bool has_row_names(Names const& cells) const {
    bool const is_last_filled = std::ranges::any_of(lines_.all(), [&](TableLine const& line) {
      auto const seen = lines_.cells(line);
      return line.record >= data_.first_data && line.record <= data_.last_data &&
             seen.size() == columns_ && seen.back().kind != CellKind::Empty;
    });
    return is_last_filled && !cells.empty() && !cells.front().empty();
  }

  TableLines const& lines_;
  HeaderRows data_;
  std::size_t columns_;
  std::vector<Stretch> places_;
};

std::size_t num_filled(Names const& names) {
  return names.size() - static_cast<std::size_t>(std::ranges::count(names, std::u16string()));
}

bool are_different(Names const& names) {
  std::set<view> seen;
  return std::ranges::all_of(names, [&seen](std::u16string const& name) {
    return name.empty() || seen.insert(name).second;
  });
}

/// Nothing is missing but perhaps the first.
bool are_complete(Names const& names) {
  std::size_t const filled = num_filled(names);
  return filled == names.size() || (filled + 1 == names.size() && names.front().empty());
}

std::vector<std::size_t> all_of(std::size_t const count) {
  std::vector<std::size_t> all(count);
  std::iota(all.begin(), all.end(), std::size_t{0});
  return all;
}

/// Whether a blank line stands between two lines.
bool are_apart(TableLines const& lines, std::size_t const upper, std::size_t const lower) {
  auto const first = lines.all().begin() + static_cast<std::ptrdiff_t>(upper);
  auto const end = lines.all().begin() + static_cast<std::ptrdiff_t>(lower);
  return std::any_of(first, end,
                     [](TableLine const& line) { return line.kind == LineKind::Blank; });
}

/// Which of the rows hold the names. A row that has all names, each another, is enough; units may
/// stand below it, and titles above it behind a blank line. Of others the last row with all names,
/// or all rows together.
std::vector<std::size_t> choose_rows(TableLines const& lines, std::vector<std::size_t> const& rows,
                                     std::vector<Names> const& read) {
  std::optional<std::size_t> enough;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    bool const is_first = !enough || are_apart(lines, rows[*enough], rows[i]);
    if (is_first && are_complete(read[i]) && are_different(read[i])) {
      enough = i;
    }
  }
  if (!enough && num_filled(read.back()) == read.back().size()) {
    enough = rows.size() - 1;
  }
  return enough ? std::vector<std::size_t>{*enough} : all_of(rows.size());
}

/// An empty cell takes what its left neighbour says, where the rows below go on.
void fill_merged(Names& upper, Names const& lower) {
  for (std::size_t i = 1; i < upper.size() && i < lower.size(); ++i) {
    if (upper[i].empty() && !lower[i].empty() && !lower[i - 1].empty()) {
      upper[i] = upper[i - 1];
    }
  }
}

Names joined(std::vector<Names> rows) {
  Names names = rows.back();
  for (std::size_t i = rows.size() - 1; i-- > 0;) {
    rows[i].resize(names.size());
    fill_merged(rows[i], names);
    for (std::size_t column = 0; column < names.size(); ++column) {
      bool const has_both = !names[column].empty() && !rows[i][column].empty();
      names[column] = rows[i][column] + (has_both ? u" " : u"") + names[column];
    }
  }
  return names;
}

/// The line without a comment marker in front of it, of whatever kind.
view without_marker(view const line) {
  std::size_t const first = line.find_first_not_of(u"#%!;*/ \t");
  return first == view::npos ? view() : line.substr(first);
}

/// The fields of a text that is one record, read as the table is.
Names split_line(Reading const& r, view const line) {
  textio::FieldArray fields;
  auto options = r.strategy->options();
  options.comment_style.clear();
  splitting::read_records(options, r.strategy->mode(), r.syntax, line, 1, fields);
  Names texts;
  for (textio::Field const& field : fields.fields()) {
    texts.push_back(name_of_field(field.view(), r));
  }
  return texts;
}

bool look_like_names(Names const& cells) {
  ValueGrammar const usual(0, {});  // quotes are taken off, and nobody says how names are written
  return std::ranges::all_of(cells, [&usual](std::u16string const& cell) {
    ValueShape const shape = usual.look_at(cell).shape;
    return (shape == ValueShape::Word || shape == ValueShape::Phrase) && cell.front() != u'@';
  });
}

}  // namespace

NameRows read_names(TableLines const& lines, std::vector<std::size_t> const& rows,
                    NameRequest const& request) {
  NameReader reader(lines, request.data);
  std::vector<Names> read;
  read.reserve(rows.size());
  for (std::size_t const row : rows) {
    read.push_back(reader.read(row));
  }
  for (Names& names : read) {
    names.resize(reader.columns());
  }
  std::vector<std::size_t> const chosen =
      request.all_are_names ? all_of(rows.size()) : choose_rows(lines, rows, read);
  NameRows found;
  found.num_columns = reader.columns();
  std::vector<Names> texts;
  for (std::size_t const i : chosen) {
    texts.push_back(std::move(read[i]));
    found.rows.push_back(rows[i]);
  }
  found.names = joined(std::move(texts));
  return found;
}

NameRows find_commented_names(TableLines const& lines, std::size_t const first_data) {
  NameRows found;
  found.num_columns = lines.columns();
  for (std::size_t i = first_data; i-- > 0;) {
    TableLine const& line = lines.all()[i];
    if (line.kind == LineKind::Blank || line.kind == LineKind::Ruler) {
      continue;
    }
    view const text = lines.text(line);
    view const bare = without_marker(text);
    auto cells = split_line(lines.reading(), bare);
    if (bare.size() < trimmed(text).size() && cells.size() == lines.columns() &&
        look_like_names(cells)) {
      found.names = std::move(cells);
      found.rows = {i};
    }
    break;
  }
  return found;
}

NameRows read_commented_names(TableLines const& lines, std::size_t const line) {
  NameRows found;
  found.num_columns = lines.columns();
  auto const at = std::ranges::find(lines.all(), line, &TableLine::line);
  if (at != lines.all().end() && at->kind == LineKind::Comment) {
    found.names = split_line(lines.reading(), without_marker(lines.text(*at)));
    found.names.resize(found.num_columns);
    found.rows = {static_cast<std::size_t>(at - lines.all().begin())};
  }
  return found;
}

}  // namespace textimport::analysis
