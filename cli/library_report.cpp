// SPDX-License-Identifier: MIT

#include "cli/library_report.hpp"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/lines.hpp"
#include "cli/report_parts.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textio::enums::ColumnType;

std::string header_text(Answer const& answer, Settings const& settings) {
  if (settings.is_given(Option::HeaderLines) && !settings.parsing.detect_header_lines) {
    return fmt::format("{} (given)", answer.library->header_lines);
  }
  bool const may_be_names = answer.column_types.size() > 1;
  return fmt::format("{}{}", answer.library->header_lines,
                     may_be_names ? "; the first row may be names" : "");
}

void add_header_lines(std::string& text, Preview const& preview, std::size_t const width) {
  constexpr std::size_t most = 12;
  std::size_t const shown = std::min(preview.header_lines.size(), most);
  for (std::size_t line = 0; line < shown; ++line) {
    text += fmt::format("    {:>3}| {}\n", line + 1,
                        display_text(preview.header_lines[line], width - 9).utf8);
  }
  if (preview.header_lines.size() > most) {
    text += fmt::format("       | (and {} more)\n", preview.header_lines.size() - most);
  }
}

/// The column types with their positions, runs of equal ones taken together: "1-3 number, 4 text".
std::string type_runs(std::vector<ColumnType> const& types) {
  if (types.size() == 1) {
    return std::string(type_word(types.front()));
  }
  std::vector<std::string> runs;
  for (std::size_t start = 0; start < types.size();) {
    std::string_view const word = type_word(types[start]);
    std::size_t end = start + 1;
    while (end < types.size() && type_word(types[end]) == word) {
      ++end;
    }
    runs.push_back(end == start + 1 ? fmt::format("{} {}", end, word)
                                    : fmt::format("{}-{} {}", start + 1, end, word));
    start = end;
  }
  constexpr std::size_t most = 40;
  std::size_t const rest = runs.size() - std::min(runs.size(), most);
  runs.resize(runs.size() - rest);
  return fmt::format("{}{}", fmt::join(runs, ", "), and_more(rest));
}

}  // namespace

std::string library_facts(Answer const& answer, Settings const& settings, Preview const& preview) {
  FactLines lines(settings.width);
  add_layout(lines, answer, settings);
  lines.add("header lines", header_text(answer, settings));
  add_header_lines(lines.text(), preview, settings.width);
  lines.add(
      "columns",
      fmt::format("{}{}{}", answer.column_types.size(), given_mark(settings, {Option::Columns}),
                  answer.column_types.empty() ? "" : ": " + type_runs(answer.column_types)));
  add_text(lines, answer, settings);
  return lines.text();
}

}  // namespace cli
