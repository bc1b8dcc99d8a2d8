// SPDX-License-Identifier: MIT
#include "text_import/report/noted_lines_internal.hpp"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/headings_internal.hpp"
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
  auto const is_between = [](NotedLine const& noted) {
    return noted.role == LineRole::Group || noted.role == LineRole::Total;
  };
  auto const data = std::ranges::find_if(
      all, [&](NotedLine const& noted) { return noted.line >= analysis.format.region.first_line; });
  auto const below = std::ranges::find_if_not(data, all.end(), is_between);
  auto const above_count = static_cast<std::size_t>(data - all.begin());
  auto const below_count = static_cast<std::size_t>(all.end() - below);
  add_lines(facts, "above", all.first(above_count), analysis.lines);
  add_lines(facts, "between", all.subspan(above_count, all.size() - above_count - below_count),
            analysis.lines);
  add_lines(facts, "below", all.last(below_count), analysis.lines);
}

std::string line_story(Evidence const& evidence, ReportStyle const& style) {
  constexpr std::size_t most = 24;
  auto const& all = evidence.line_reasons;
  if (all.empty()) {
    return {};
  }
  std::string text = heading("Lines", style);
  std::size_t const shown = std::min(all.size(), most);
  auto const number_cells =
      std::max<std::size_t>(3, fmt::formatted_size("{}", all.back().line + 1));
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (shown < all.size() && i == shown / 2) {
      i = all.size() - shown / 2;
      text += fmt::format("       ({} more)\n", all.size() - shown);
    }
    std::string const start =
        fmt::format("  {:>{}}  {:<9}  ", all[i].line + 1, number_cells, word_of(all[i].role));
    text +=
        start + wrapped(all[i].reasons.empty() ? "by its place"
                                               : fmt::format("{}", fmt::join(all[i].reasons, "; ")),
                        start.size(), style.width);
  }
  return text;
}

}  // namespace textimport::reporting
