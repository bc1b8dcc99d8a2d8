// SPDX-License-Identifier: MIT
#include "text_import/report/column_list_internal.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/column_remarks_internal.hpp"
#include "text_import/report/display_text.hpp"

namespace textimport::reporting {

namespace {

/// Neighbouring columns that are told in one line.
struct ColumnRun {
  std::size_t first = 0;
  std::size_t last = 0;  ///< included
  std::u16string last_name;
  Column column;          ///< of all of them together
  ColumnEvidence counts;  ///< likewise
  double certainty = 1;   ///< the lowest
};

bool are_alike(Column const& a, Column const& b) {
  auto const key = [](Column const& c) {
    return std::tuple(c.type, c.type_origin, c.true_words, c.false_words, c.leading_zeros,
                      c.quoted);
  };
  return key(a) == key(b) && a.numbers == b.numbers && a.dates == b.dates;
}

void extend(std::optional<Extent>& extent, std::optional<Extent> const& further) {
  if (extent && further) {
    extent->end = further->end;
  } else {
    extent.reset();
  }
}

void join(ColumnRun& run, ColumnRun const& next) {
  run.last = next.last;
  run.last_name = next.last_name;
  run.counts.values += next.counts.values;
  run.counts.fitting += next.counts.fitting;
  run.counts.empty += next.counts.empty;
  run.counts.open_marks += next.counts.open_marks;
  run.counts.other_marks += next.counts.other_marks;
  run.certainty = std::min(run.certainty, next.certainty);
  run.counts.longest_value = std::max(run.counts.longest_value, next.counts.longest_value);
  auto& words = run.column.missing_words;
  for (std::u16string const& word : next.column.missing_words) {
    if (std::ranges::find(words, word) == words.end()) {
      words.push_back(word);
    }
  }
  extend(run.column.characters, next.column.characters);
  extend(run.column.bytes, next.column.bytes);
}

std::vector<ColumnRun> column_runs(Format const& format, Evidence const& evidence,
                                   Certainty const& certainty) {
  constexpr std::size_t few = 24;
  auto const& columns = format.columns;
  std::vector<ColumnRun> runs;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    ColumnEvidence const counts =
        i < evidence.columns.size() ? evidence.columns[i] : ColumnEvidence();
    double const sure = i < certainty.columns.size() ? certainty.columns[i] : 1;
    ColumnRun run{i, i, columns[i].name, columns[i], counts, sure};
    if (columns.size() > few && !runs.empty() && are_alike(runs.back().column, columns[i])) {
      join(runs.back(), run);
    } else {
      runs.push_back(std::move(run));
    }
  }
  return runs;
}

/// The first and the last of a range that is counted from 1.
std::string range_text(std::size_t const first, std::size_t const last) {
  return first == last ? fmt::format("{}", first) : fmt::format("{}-{}", first, last);
}

std::string extent_text(std::optional<Extent> const& extent) {
  return extent ? range_text(extent->begin + 1, extent->end) : "vary";
}

/// The cells of a line of the list, in their order.
enum Cell : std::size_t { Number, Name, Type, Longest, Characters, Bytes };

/// The parts of the line about a run, without its remarks.
std::vector<DisplayText> cells_of(ColumnRun const& run, std::size_t const name_cells) {
  auto const plain = [](std::string const& text) { return DisplayText{text, text.size()}; };
  bool const is_run = run.last > run.first;
  DisplayText name = display_text(run.column.name, name_cells);
  if (is_run && !run.column.name.empty()) {
    name = display_text(run.column.name + u" to " + run.last_name, name_cells);
  }
  return {plain(range_text(run.first + 1, run.last + 1)),
          std::move(name),
          plain(std::string(word_of(run.column.type))),
          plain(fmt::format("{}", run.counts.longest_value)),
          plain(extent_text(run.column.characters)),
          plain(extent_text(run.column.bytes))};
}

bool has_other_bytes(std::vector<ColumnRun> const& runs) {
  return std::ranges::any_of(runs, [](ColumnRun const& run) {
    return run.column.characters && run.column.bytes != run.column.characters;
  });
}

/// Which of the cells say anything.
std::vector<std::size_t> telling_cells(Format const& format, std::vector<ColumnRun> const& runs) {
  std::vector<std::size_t> shown{Number};
  if (has_names(format)) {
    shown.push_back(Name);
  }
  shown.insert(shown.end(), {Type, Longest});
  if (runs.front().column.characters) {
    shown.push_back(Characters);
    if (has_other_bytes(runs)) {
      shown.push_back(Bytes);
    }
  }
  return shown;
}

/// The list as it is to be shown.
struct List {
  std::vector<std::vector<DisplayText>> rows;  ///< the heading, then one for each run
  std::vector<std::size_t> widths;             ///< of the cells
  std::vector<std::size_t> shown;              ///< the cells that are shown
  std::size_t width = 0;                       ///< of a line
};

constexpr std::size_t list_indent = 4;
constexpr std::size_t gap = 2;

/// Leaves out the last cells of a line that find no room.
void fit(List& list) {
  auto const used = [&] {
    std::size_t cells = list_indent;
    for (std::size_t const i : list.shown) {
      cells += list.widths[i] + gap;
    }
    return cells - gap;
  };
  while (used() > list.width && list.shown.size() > 1) {
    list.shown.pop_back();
  }
}

/// A line of the list: the cells, and the remarks behind them or, where there is little room,
/// below them.
std::string list_line(List const& list, std::size_t const row, std::string const& remarks) {
  constexpr std::size_t least_room = 24;
  constexpr std::size_t indent_below = 8;
  std::string line(list_indent, ' ');
  std::size_t column = line.size();
  for (std::size_t const i : list.shown) {
    bool const is_number = i == Number || i == Longest;
    line += pad(list.rows[row][i], list.widths[i], is_number) + std::string(gap, ' ');
    column += list.widths[i] + gap;
  }
  bool const has_room = column + std::min(remarks.size(), least_room) <= list.width;
  if (has_room && !remarks.empty()) {
    return line + wrapped(remarks, column, list.width);
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n" +
         (remarks.empty()
              ? ""
              : std::string(indent_below, ' ') + wrapped(remarks, indent_below, list.width));
}

std::string column_list(Format const& format, std::vector<ColumnRun> const& runs,
                        std::size_t const width) {
  constexpr std::size_t most = 40;
  List list{
      .rows =
          {{{"#", 1}, {"name", 4}, {"type", 4}, {"longest", 7}, {"characters", 10}, {"bytes", 5}}},
      .widths = {},
      .shown = telling_cells(format, runs),
      .width = width};
  for (std::size_t i = 0; i < std::min(runs.size(), most); ++i) {
    list.rows.push_back(cells_of(runs[i], std::clamp<std::size_t>(width / 4, 10, 28)));
  }
  list.widths.resize(list.rows.front().size());
  for (auto const& row : list.rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      list.widths[i] = std::max(list.widths[i], row[i].cells);
    }
  }
  fit(list);
  std::string text = list_line(list, 0, "");
  for (std::size_t row = 1; row < list.rows.size(); ++row) {
    ColumnRun const& run = runs[row - 1];
    text += list_line(list, row, column_remarks(run.column, run.counts, run.certainty));
  }
  if (runs.size() > most) {
    text += fmt::format("    (columns {} to {} are left out)\n", runs[most].first + 1,
                        runs.back().last + 1);
  }
  return text;
}

}  // namespace

void add_columns(FactLines& facts, Format const& format, Evidence const& evidence,
                 Certainty const& certainty) {
  auto const runs = column_runs(format, evidence, certainty);
  std::string count = fmt::format("{}", format.columns.size());
  if (format.columns.size() == 1) {
    ColumnRun const& run = runs.front();
    std::string const remarks = column_remarks(run.column, run.counts, run.certainty);
    count += fmt::format(": {}, the longest value {}{}{}", word_of(run.column.type),
                         run.counts.longest_value, remarks.empty() ? "" : "; ", remarks);
  }
  facts.add("columns", count);
  if (format.columns.size() > 1) {
    facts.text() += column_list(format, runs, facts.width());
  }
}

}  // namespace textimport::reporting
