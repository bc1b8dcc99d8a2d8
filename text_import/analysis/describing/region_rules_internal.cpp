// SPDX-License-Identifier: MIT
//
// Rules are tried from the one that fits most files of a kind to the one that only counts lines;
// the first that says of this very text what was found in it is kept.
#include "text_import/analysis/describing/region_rules_internal.hpp"

#include <algorithm>
#include <array>

#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

bool is_blank(view const line) {
  return trimmed(line).empty();
}

/// The first line from `first` on for which `predicate` holds; the number of lines for none.
template <class Predicate>
std::size_t find_line(LineIndex const& lines, std::size_t const first, Predicate const predicate) {
  std::size_t line = std::min(first, lines.count());
  while (line < lines.count() && !predicate(lines[line])) {
    ++line;
  }
  return line;
}

std::size_t without_blank_end(LineIndex const& lines, std::size_t const first, std::size_t end) {
  while (end > first && is_blank(lines[end - 1])) {
    --end;
  }
  return end;
}

/// What lines like this one begin with: its letters and signs up to the first digit. Empty when
/// that says too little.
view beginning_of(view const line) {
  constexpr std::size_t least = 3;
  constexpr std::size_t longest = 40;
  view beginning = line.substr(0, std::min(line.find_first_of(u"0123456789"), longest));
  beginning = beginning.substr(0, beginning.find_last_not_of(u" \t,;|") + 1);
  return trimmed(beginning).size() < least ? view() : beginning;
}

DataStart derive_start(Region const& region, LineIndex const& lines) {
  DataStart counted = region.start;
  counted.rule = StartRule::AfterLines;
  counted.lines = region.first_line;
  if (region.name_lines.empty() || region.name_lines.front() == 0) {
    return counted;
  }
  std::size_t const names = region.name_lines.front();
  DataStart behind = region.start;
  behind.rule = StartRule::BehindLine;
  behind.lines = region.first_line - names;
  behind.line = std::u16string(trimmed(lines[names]));
  return find_start(behind, lines) == region.first_line ? behind : counted;
}

DataEnd derive_end(Region const& region, LineIndex const& lines, bool const goes_on) {
  DataEnd end = region.end;
  if (!region.end_line || region.first_line >= *region.end_line) {
    return end;
  }
  std::size_t const found = *region.end_line;
  std::size_t const footer =
      find_line(lines, found, [](view const line) { return !is_blank(line); });
  auto const footer_text = footer < lines.count() ? beginning_of(lines[footer]) : view();
  std::array const rules{DataEnd{EndRule::EndOfText, 0, {}, end.origin},
                         DataEnd{EndRule::BlankLine, 0, {}, end.origin},
                         DataEnd{EndRule::LineLike, 0, std::u16string(footer_text), end.origin},
                         DataEnd{EndRule::LinesBeforeEnd, lines.count() - found, {}, end.origin}};
  for (DataEnd const& rule : rules) {
    bool const says_nothing = rule.rule == EndRule::LineLike && rule.line.empty();
    if (!says_nothing && find_end(rule, lines, region.first_line, goes_on) == found) {
      return rule;
    }
  }
  return end;
}

}  // namespace

std::optional<std::size_t> find_start(DataStart const& start, LineIndex const& lines) {
  if (start.rule == StartRule::AfterLines) {
    return std::min(start.lines, lines.count());
  }
  view const wanted = trimmed(start.line);
  std::size_t const line =
      find_line(lines, 0, [&](view const text) { return trimmed(text) == wanted; });
  if (line == lines.count()) {
    return std::nullopt;
  }
  return line + std::min(start.lines, lines.count() - line);
}

std::optional<std::size_t> find_end(DataEnd const& end, LineIndex const& lines,
                                    std::size_t const first, bool const goes_on) {
  std::size_t found = lines.count();
  switch (end.rule) {
    case EndRule::BlankLine:
      found = find_line(lines, first, is_blank);
      break;
    case EndRule::LineLike:
      found = find_line(lines, first, [&](view const line) { return line.starts_with(end.line); });
      break;
    case EndRule::LinesBeforeEnd:
      found = lines.count() - std::min(end.lines, lines.count());
      break;
    case EndRule::EndOfText:
      break;
  }
  bool const is_by_end = end.rule == EndRule::LinesBeforeEnd || found == lines.count();
  if (is_by_end && goes_on) {
    return std::nullopt;
  }
  return without_blank_end(lines, std::min(first, found), found);
}

void derive_rules(Region& region, LineIndex const& lines, bool const goes_on) {
  region.start = derive_start(region, lines);
  region.end = derive_end(region, lines, goes_on);
}

}  // namespace textimport::analysis
