// SPDX-License-Identifier: MIT

#include "cli/report.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/lines.hpp"
#include "cli/preview.hpp"
#include "cli/table.hpp"
#include "cli/words.hpp"
#include "text_import/import_error.hpp"

namespace cli {

namespace {

using textio::enums::ColumnType;
using textio::enums::StrategyMode;

constexpr std::size_t table_indent = 4;

/// What a list is ended with that is too long to be shown.
std::string and_more(std::size_t const count) {
  return count == 0 ? std::string() : fmt::format(" and {} more", count);
}

std::string given_mark(Settings const& settings, std::initializer_list<Option> const parts) {
  bool const given =
      std::ranges::any_of(parts, [&](Option const part) { return settings.is_given(part); });
  return given ? " (given)" : "";
}

std::string layout_text(Answer const& answer, Settings const& settings) {
  std::string_view const word = layout_word(answer.finding.strategy->mode());
  if (!answer.finding.decided && answer.finding.verdict != Verdict::ColumnsDiffer) {
    return fmt::format("not decided; read as {}", word);
  }
  return std::string(word) +
         given_mark(settings, {Option::Layout, Option::Delimiter, Option::Widths});
}

std::string header_text(Answer const& answer, Settings const& settings) {
  if (settings.is_given(Option::HeaderLines) && !settings.parsing.detect_header_lines) {
    return fmt::format("{} (given)", answer.header_lines);
  }
  bool const may_be_names = answer.column_types.size() > 1;
  return fmt::format("{}{}", answer.header_lines,
                     may_be_names ? "; the first row may be names" : "");
}

std::string widths_text(std::vector<std::size_t> const& widths) {
  constexpr std::size_t most = 60;
  std::size_t const shown = std::min(widths.size(), most);
  return fmt::format("{}{}",
                     fmt::join(widths.begin(), widths.begin() + std::ptrdiff_t(shown), ", "),
                     and_more(widths.size() - shown));
}

std::string text_text(Answer const& answer, Settings const& settings) {
  auto const& findings = answer.text.findings();
  std::string text = findings.encoding.name;
  text += settings.is_given(Option::Encoding) ? " (given)"
          : findings.encoding.is_guess()      ? " (a guess)"
                                              : "";
  auto const& ends = findings.line_endings;
  std::string_view const ending = line_ending_word(ends);
  if (ending == "mixed") {
    text += fmt::format(", line ends mixed: {} LF, {} CRLF, {} CR", ends.lf, ends.crlf, ends.cr);
  } else if (!ending.empty()) {
    text += fmt::format(", line ends {}", ending);
  }
  if (findings.compression != "none") {
    text += ", " + findings.compression;
  }
  return text;
}

std::string sampled_text(Answer const& answer, Settings const& settings) {
  std::size_t const records = records_sampled(answer);
  bool const more = records >= settings.records || answer.text.findings().goes_on;
  return fmt::format("{}{} record{}", more ? "the first " : "", records, records == 1 ? "" : "s");
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

std::string rows_text(Answer const& answer, Preview const& preview, Settings const& settings) {
  TableSpace const space{.width = settings.width, .indent = table_indent};
  if (answer.finding.strategy->mode() == StrategyMode::FixedWidth) {
    return ruled_table(answer.finding.strategy->options().column_widths, preview.rows, space);
  }
  std::vector<TableColumn> columns;
  for (ColumnType const type : answer.column_types) {
    columns.push_back({std::string(type_word(type)), type == ColumnType::Number});
  }
  return aligned_table(columns, preview.rows, space);
}

/// The options that are given and stand nowhere else in the report.
std::string other_options(Settings const& settings) {
  std::vector<std::string> names;
  for (Option const option : settings.given) {
    if (spec(option).section != Section::Layout && option != Option::Encoding) {
      names.push_back(flag(option));
    }
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

/// What is known, line by line.
std::string facts(Answer const& answer, Settings const& settings, Preview const& preview) {
  FactLines lines(settings.width);
  auto const& options = answer.finding.strategy->options();
  auto const mode = answer.finding.strategy->mode();
  lines.add("layout", layout_text(answer, settings));
  if (mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned) {
    lines.add("delimiter",
              reading_name(*answer.finding.strategy) + given_mark(settings, {Option::Delimiter}));
  } else if (mode == StrategyMode::FixedWidth) {
    lines.add("widths",
              widths_text(options.column_widths) + given_mark(settings, {Option::Widths}));
  }
  lines.add("header lines", header_text(answer, settings));
  add_header_lines(lines.text(), preview, settings.width);
  lines.add(
      "columns",
      fmt::format("{}{}{}", answer.column_types.size(), given_mark(settings, {Option::Columns}),
                  answer.column_types.empty() ? "" : ": " + type_runs(answer.column_types)));
  lines.add("text", text_text(answer, settings));
  lines.add("sampled", sampled_text(answer, settings));
  if (std::string const others = other_options(settings); !others.empty()) {
    lines.add("given", others);
  }
  lines.add("why", why(answer, settings));
  if (auto const& encoding = answer.text.findings().encoding; encoding.is_guess()) {
    lines.add("note", fmt::format("the encoding is a guess: {}; --encoding names it",
                                  encoding.explanation));
  }
  for (std::string const& note : notes(answer)) {
    lines.add("note", note);
  }
  return lines.text();
}

}  // namespace

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

std::vector<std::string> notes(Answer const& answer) {
  auto const& findings = answer.text.findings();
  std::vector<std::string> notes;
  if (findings.no_line_end) {
    notes.emplace_back(
        "no line ends in the sample, which is a piece of one line; a larger "
        "--sample-size may help");
  }
  if (auto const bad = findings.decoding.bad_bytes; bad > 0) {
    notes.push_back(
        fmt::format("{} byte{} without a meaning in {} replaced by U+FFFD, first at "
                    "byte {}",
                    bad, bad == 1 ? "" : "s", findings.encoding.name,
                    findings.decoding.first_bad_offsets.front()));
  }
  if (findings.nuls > 0) {
    notes.push_back(fmt::format("the sample holds {} NUL character{}", findings.nuls,
                                findings.nuls == 1 ? "" : "s"));
  }
  if (std::size_t const records = records_sampled(answer); answer.header_lines * 2 > records) {
    notes.push_back(fmt::format("{} of {} records are header lines: have a look at the rest",
                                std::min(answer.header_lines, records), records));
  }
  notes.insert(notes.end(), findings.warnings.begin(), findings.warnings.end());
  return notes;
}

std::string report(Answer const& answer, Settings const& settings, Colors const& colors) {
  Preview const preview = make_preview(answer, settings);
  std::string text =
      fmt::format("{}{}{}\n", colors.heading,
                  display_bytes(textimport::display_name(answer.path)).utf8, colors.reset);
  text += facts(answer, settings, preview);
  if (!preview.rows.empty()) {
    text += "\n" + rows_text(answer, preview, settings);
  }
  return text;
}

}  // namespace cli
