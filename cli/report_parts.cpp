// SPDX-License-Identifier: MIT

#include "cli/report_parts.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "cli/reasons.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

std::string layout_text(Answer const& answer, Settings const& settings) {
  std::string_view const word = layout_word(answer.strategy->mode());
  if (!answer.decided && answer.verdict != Verdict::ColumnsDiffer) {
    return fmt::format("not decided; read as {}", word);
  }
  return std::string(word) +
         given_mark(settings, {Option::Layout, Option::Delimiter, Option::Widths});
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

}  // namespace

std::string and_more(std::size_t const count) {
  return count == 0 ? std::string() : fmt::format(" and {} more", count);
}

std::string given_mark(Settings const& settings, std::initializer_list<Option> const parts) {
  bool const given =
      std::ranges::any_of(parts, [&](Option const part) { return settings.is_given(part); });
  return given ? " (given)" : "";
}

void add_layout(FactLines& lines, Answer const& answer, Settings const& settings) {
  auto const mode = answer.strategy->mode();
  lines.add("layout", layout_text(answer, settings));
  if (mode == StrategyMode::Delimited || mode == StrategyMode::SpaceAligned) {
    lines.add("delimiter",
              reading_name(*answer.strategy) + given_mark(settings, {Option::Delimiter}));
  } else if (mode == StrategyMode::FixedWidth) {
    lines.add("widths", widths_text(answer.strategy->options().column_widths) +
                            given_mark(settings, {Option::Widths}));
  }
}

void add_text(FactLines& lines, Answer const& answer, Settings const& settings) {
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
  if (!answer.survey) {
    std::size_t const records = records_sampled(answer);
    std::size_t const header = answer.library->header_lines;
    if (header * 2 > records) {
      notes.push_back(fmt::format("{} of {} records are header lines: have a look at the rest",
                                  std::min(header, records), records));
    }
  }
  notes.insert(notes.end(), findings.warnings.begin(), findings.warnings.end());
  return notes;
}

}  // namespace cli
