// SPDX-License-Identifier: MIT
#include "text_import/report/text_table_internal.hpp"

#include <algorithm>
#include <span>

#include <fmt/format.h>

#include "text_import/report/display_text.hpp"

namespace textimport::reporting {

namespace {

constexpr std::size_t gap = 2;

/// The cells of every column, cut to `cap`, and how wide each column is then.
struct Grid {
  std::vector<std::vector<DisplayText>> rows;
  std::vector<std::size_t> widths;
};

Grid make_grid(Rows const& rows, std::vector<std::size_t> widths, std::size_t const cap) {
  Grid grid{.rows = {}, .widths = std::move(widths)};
  for (auto const& row : rows) {
    auto& cells = grid.rows.emplace_back();
    for (std::size_t column = 0; column < std::min(row.size(), grid.widths.size()); ++column) {
      cells.push_back(display_text(row[column], cap));
      grid.widths[column] = std::max(grid.widths[column], cells.back().cells);
    }
  }
  return grid;
}

/// How many columns fit, at least one.
std::size_t columns_that_fit(Grid const& grid, std::size_t const between, std::size_t const room) {
  std::size_t used = 0;
  for (std::size_t column = 0; column < grid.widths.size(); ++column) {
    used += grid.widths[column] + (column == 0 ? 0 : between);
    if (used > room) {
      return std::max<std::size_t>(column, 1);
    }
  }
  return grid.widths.size();
}

/// Cuts the values no more than needed: the first of these lengths that lets every column fit, or
/// else one that leaves most of them readable.
Grid fitting_grid(Rows const& rows, std::vector<std::size_t> const& least,
                  std::size_t const between, std::size_t const room) {
  std::size_t const whole = std::max<std::size_t>(room, 8);
  for (std::size_t const cap : {whole, whole / 2, whole / 3, std::size_t{16}}) {
    Grid grid = make_grid(rows, least, std::max<std::size_t>(cap, 8));
    if (columns_that_fit(grid, between, room) == grid.widths.size()) {
      return grid;
    }
  }
  return make_grid(rows, least, std::min<std::size_t>(whole, 24));
}

std::string rest_of_columns(std::size_t const shown, std::size_t const all,
                            std::string const& indent) {
  return shown == all ? std::string()
                      : fmt::format("{}(columns 1 to {} of {})\n", indent, shown, all);
}

/// As much of a name as fits; nothing where that would be only the mark of the cut.
DisplayText name_within(std::u16string_view const name, std::size_t const cells) {
  constexpr std::size_t least = 4;
  DisplayText whole = display_text(name);
  if (whole.cells <= cells) {
    return whole;
  }
  return cells < least ? DisplayText{} : display_text(name, cells);
}

/// A line without the blanks at its end.
void add_line(std::string& text, std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  text += line + "\n";
}

}  // namespace

std::string aligned_table(std::vector<TableColumn> const& columns, Rows const& rows,
                          TableSpace const space) {
  Rows all{{}};  // the headings are cut like the values
  for (TableColumn const& column : columns) {
    all.front().push_back(column.heading);
  }
  all.insert(all.end(), rows.begin(), rows.end());
  std::size_t const room = space.width - space.indent;
  Grid const grid = fitting_grid(all, std::vector<std::size_t>(columns.size(), 1), gap, room);
  std::size_t const shown = columns_that_fit(grid, gap, room);
  std::string const indent(space.indent, ' ');
  std::string heading = indent;
  std::string rule = indent;
  for (std::size_t column = 0; column < shown; ++column) {
    heading += pad(grid.rows.front()[column], grid.widths[column]) + std::string(gap, ' ');
    rule += std::string(grid.widths[column], '-') + std::string(gap, ' ');
  }
  std::string text;
  add_line(text, heading);
  add_line(text, rule);
  for (auto const& row : std::span(grid.rows).subspan(1)) {
    std::string line = indent;
    for (std::size_t column = 0; column < std::min(shown, row.size()); ++column) {
      line += pad(row[column], grid.widths[column], columns[column].to_the_right);
      line += std::string(gap, ' ');
    }
    add_line(text, line);
  }
  return text + rest_of_columns(shown, columns.size(), indent);
}

std::string ruled_table(std::vector<std::size_t> const& widths,
                        std::vector<std::u16string> const& names, Rows const& rows,
                        TableSpace const space) {
  constexpr std::size_t bars = 2;
  std::size_t const room = space.width - space.indent - bars;
  std::size_t const widest = std::min<std::size_t>(room, 40);  // a drawing, not a tape
  std::vector<std::size_t> least;
  least.reserve(widths.size());
  for (std::size_t const width : widths) {
    least.push_back(std::clamp<std::size_t>(width, 1, widest));
  }
  Grid const grid = fitting_grid(rows, least, 1, room);
  std::size_t const shown = columns_that_fit(grid, 1, room);
  std::string const indent(space.indent, ' ');
  std::string text;
  if (!names.empty()) {
    std::string line = indent;
    for (std::size_t column = 0; column < shown; ++column) {
      line += " " + pad(name_within(names[column], grid.widths[column]), grid.widths[column]);
    }
    add_line(text, line);
  }
  text += indent;
  for (std::size_t column = 0; column < shown; ++column) {
    text += fmt::format("|{:-<{}}", widths[column], grid.widths[column]);
  }
  text += "|\n";
  for (auto const& row : grid.rows) {
    text += indent;
    for (std::size_t column = 0; column < shown; ++column) {
      DisplayText const cell = column < row.size() ? row[column] : DisplayText{};
      text += "|" + pad(cell, grid.widths[column]);
    }
    text += "|\n";
  }
  return text + rest_of_columns(shown, widths.size(), indent);
}

}  // namespace textimport::reporting
