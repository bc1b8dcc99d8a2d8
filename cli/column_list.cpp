// SPDX-License-Identifier: MIT

#include "cli/column_list.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/report_parts.hpp"
#include "cli/survey_answer.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textimport::ColumnExtent;
using textimport::ColumnFindings;
using textimport::DateOrder;

/// Neighbouring columns that are told in one line.
struct ColumnRun {
  std::size_t first = 0;
  std::size_t last = 0;  ///< included
  std::string type;
  std::u16string last_name;
  ColumnFindings findings;  ///< of all of them together
};

bool are_alike(ColumnRun const& a, ColumnRun const& b) {
  auto const key = [](ColumnFindings const& c) {
    return std::tuple(c.decimal_mark, c.thousands_mark, c.order, c.leading_zeros, c.quoted);
  };
  return a.type == b.type && key(a.findings) == key(b.findings);
}

void join(ColumnRun& run, ColumnRun const& next) {
  ColumnFindings& all = run.findings;
  ColumnFindings const& more = next.findings;
  run.last = next.last;
  run.last_name = next.last_name;
  all.values += more.values;
  all.fitting += more.fitting;
  all.empty += more.empty;
  all.longest_value = std::max(all.longest_value, more.longest_value);
  for (std::u16string const& word : more.missing_words) {
    if (std::ranges::find(all.missing_words, word) == all.missing_words.end()) {
      all.missing_words.push_back(word);
    }
  }
  auto const extend = [](std::optional<ColumnExtent>& extent,
                         std::optional<ColumnExtent> const& further) {
    if (extent && further) {
      extent->end = further->end;
    } else {
      extent.reset();
    }
  };
  extend(all.characters, more.characters);
  extend(all.bytes, more.bytes);
}

std::vector<ColumnRun> column_runs(Answer const& answer, Settings const& settings) {
  constexpr std::size_t few = 24;
  auto const& columns = answer.survey->columns;
  std::vector<ColumnRun> runs;
  for (std::size_t i = 0; i < std::min(columns.size(), answer.column_types.size()); ++i) {
    std::string const type = types_are_bound(settings)
                                 ? std::string(type_word(answer.column_types[i]))
                                 : textimport::name_of(columns[i].type);
    ColumnRun run{i, i, type, columns[i].name, columns[i]};
    if (columns.size() > few && !runs.empty() && are_alike(runs.back(), run)) {
      join(runs.back(), run);
    } else {
      runs.push_back(std::move(run));
    }
  }
  return runs;
}

std::string missing_text(std::vector<std::u16string> const& words) {
  constexpr std::size_t most = 4;
  constexpr std::size_t longest = 16;
  std::vector<std::string> shown;
  for (std::u16string const& word : words) {
    if (shown.size() < most) {
      shown.push_back(fmt::format("\"{}\"", display_text(word, longest).utf8));
    }
  }
  return fmt::format("missing: {}{}", fmt::join(shown, " "), and_more(words.size() - shown.size()));
}

std::string_view order_text(DateOrder const order) {
  switch (order) {
    case DateOrder::DayFirst:
      return "day first";
    case DateOrder::MonthFirst:
      return "month first";
    case DateOrder::Ambiguous:
      return "day or month first, no value tells";
    case DateOrder::None:
    case DateOrder::YearFirst:
      break;
  }
  return "";
}

/// What is not as usual about a column.
std::string remarks(ColumnRun const& run) {
  ColumnFindings const& column = run.findings;
  std::vector<std::string> texts;
  if (column.leading_zeros) {
    texts.emplace_back("text for its leading zeros");
  }
  if (column.decimal_mark != 0 && column.decimal_mark != u'.') {
    texts.push_back("decimal " + delimiter_name(std::u16string(1, column.decimal_mark)));
  }
  if (column.thousands_mark != 0) {
    texts.push_back("thousands " + delimiter_name(std::u16string(1, column.thousands_mark)));
  }
  if (auto const order = order_text(column.order); !order.empty()) {
    texts.emplace_back(order);
  }
  if (column.quoted && column.type != textimport::ValueType::Text) {
    texts.emplace_back("in quotes");
  }
  if (column.fitting < column.values) {
    texts.push_back(
        fmt::format("{} of {} values are other", column.values - column.fitting, column.values));
  }
  if (column.empty > 0) {
    texts.push_back(fmt::format("{} empty", column.empty));
  }
  if (!column.missing_words.empty()) {
    texts.push_back(missing_text(column.missing_words));
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

/// The first and the last of a range that is counted from 1.
std::string range_text(std::size_t const first, std::size_t const last) {
  return first == last ? fmt::format("{}", first) : fmt::format("{}-{}", first, last);
}

std::string extent_text(std::optional<ColumnExtent> const& extent) {
  return extent ? range_text(extent->begin + 1, extent->end) : "vary";
}

/// The parts of the line about a run, without its remarks.
std::vector<DisplayText> cells_of(ColumnRun const& run, std::size_t const name_cells) {
  auto const plain = [](std::string const& text) { return DisplayText{text, text.size()}; };
  bool const is_run = run.last > run.first;
  DisplayText name = display_text(run.findings.name, name_cells);
  if (is_run && !run.findings.name.empty()) {
    name = display_text(run.findings.name + u" to " + run.last_name, name_cells);
  }
  return {plain(range_text(run.first + 1, run.last + 1)),
          std::move(name),
          plain(run.type),
          plain(fmt::format("{}", run.findings.longest_value)),
          plain(extent_text(run.findings.characters)),
          plain(extent_text(run.findings.bytes))};
}

bool counts_bytes(std::vector<ColumnRun> const& runs) {
  return std::ranges::any_of(runs, [](ColumnRun const& run) {
    auto const& [characters, bytes] = std::tie(run.findings.characters, run.findings.bytes);
    return characters &&
           (!bytes || bytes->begin != characters->begin || bytes->end != characters->end);
  });
}

/// Which of the cells say anything.
std::vector<std::size_t> cells_shown(Answer const& answer, std::vector<ColumnRun> const& runs) {
  std::vector<std::size_t> shown{0};
  if (answer.survey->has_names) {
    shown.push_back(1);
  }
  shown.insert(shown.end(), {2, 3});
  if (runs.front().findings.characters) {
    shown.push_back(4);
    if (counts_bytes(runs)) {
      shown.push_back(5);
    }
  }
  return shown;
}

/// A line of the list: the cells, and the remarks behind them or, where there is little room,
/// below them.
std::string list_line(std::vector<DisplayText> const& cells, std::vector<std::size_t> const& shown,
                      std::vector<std::size_t> const& widths, std::string const& remark,
                      std::size_t const width) {
  constexpr std::size_t least_room = 24;
  std::string line = "    ";
  std::size_t column = line.size();
  for (std::size_t const i : shown) {
    bool const is_number = i == 0 || i == 3;
    line += pad(cells[i], widths[i], is_number) + "  ";
    column += widths[i] + 2;
  }
  bool const has_room = column + std::min(remark.size(), least_room) <= width;
  if (has_room && !remark.empty()) {
    return line + wrapped(remark, column, width);
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n" + (remark.empty() ? "" : std::string(8, ' ') + wrapped(remark, 8, width));
}

std::string column_list(Answer const& answer, std::vector<ColumnRun> const& runs,
                        std::size_t const width) {
  constexpr std::size_t most = 40;
  std::vector<std::vector<DisplayText>> rows{
      {{"#", 1}, {"name", 4}, {"type", 4}, {"longest", 7}, {"characters", 10}, {"bytes", 5}}};
  for (std::size_t i = 0; i < std::min(runs.size(), most); ++i) {
    rows.push_back(cells_of(runs[i], std::clamp<std::size_t>(width / 4, 10, 28)));
  }
  std::vector<std::size_t> widths(rows.front().size());
  for (auto const& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], row[i].cells);
    }
  }
  auto const shown = cells_shown(answer, runs);
  std::string text;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    text += list_line(rows[i], shown, widths, i == 0 ? "" : remarks(runs[i - 1]), width);
  }
  if (runs.size() > most) {
    text += fmt::format("    (columns {} to {} are not shown; --json has them)\n",
                        runs[most].first + 1, runs.back().last + 1);
  }
  return text;
}

}  // namespace

void add_columns(FactLines& lines, Answer const& answer, Settings const& settings) {
  auto const runs = column_runs(answer, settings);
  std::string count =
      fmt::format("{}{}", answer.column_types.size(), given_mark(settings, {Option::Columns}));
  if (runs.size() == 1 && answer.column_types.size() == 1) {
    ColumnRun const& run = runs.front();
    std::string const remark = remarks(run);
    count += fmt::format(": {}, the longest value {}{}{}", run.type, run.findings.longest_value,
                         remark.empty() ? "" : "; ", remark);
  }
  lines.add("columns", count);
  if (answer.column_types.size() > 1 && !runs.empty()) {
    lines.text() += column_list(answer, runs, lines.width());
  }
}

}  // namespace cli
