// SPDX-License-Identifier: MIT
#include "text_import/report/noted_lines_internal.hpp"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/reading_words_internal.hpp"

namespace textimport::reporting {

namespace {

std::string noted_line(NotedLine const& noted, std::u16string_view const text,
                       std::size_t const number_cells, std::size_t const width) {
  std::string const start =
      fmt::format("    {:>{}}  {:<9} | ", noted.line + 1, number_cells, word_of(noted.role));
  std::string line = start + display_text(text, width - start.size()).utf8;
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

void add_lines(FactLines& facts, std::string_view const where,
               std::span<NotedLine const> const noted, LineIndex const& lines) {
  constexpr std::size_t most = 12;
  constexpr std::size_t most_at_top = 6;
  if (noted.empty()) {
    return;
  }
  facts.add(where, counted(noted.size(), "line"));
  auto const number_cells =
      std::max<std::size_t>(3, fmt::formatted_size("{}", noted.back().line + 1));
  for (std::size_t i = 0; i < noted.size(); ++i) {
    if (noted.size() > most + 1 && i == most_at_top) {
      i = noted.size() - (most - most_at_top);
      facts.text() += fmt::format("         ({} more)\n", i - most_at_top);
    }
    std::size_t const line = noted[i].line;
    facts.text() += noted_line(noted[i], line < lines.count() ? lines[line] : std::u16string_view(),
                               number_cells, facts.width());
  }
}

}  // namespace

void add_noted_lines(FactLines& facts, Analysis const& analysis) {
  std::span<NotedLine const> const all(analysis.evidence.lines);
  auto const below = std::ranges::find_if(
      all, [&](NotedLine const& noted) { return noted.line >= analysis.format.region.first_line; });
  auto const above = static_cast<std::size_t>(below - all.begin());
  add_lines(facts, "above", all.first(above), analysis.lines);
  add_lines(facts, "below", all.subspan(above), analysis.lines);
}

}  // namespace textimport::reporting
