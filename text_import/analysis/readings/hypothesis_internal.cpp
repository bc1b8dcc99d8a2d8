// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/hypothesis_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "text_format_detection/model/unit_search_internal.hpp"
#include "text_import/analysis/readings/syntax_guesses_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr std::array<view, 8> line_markers{u"#", u"%", u"//", u";", u"!", u"*", u"--", u"@"};

constexpr std::size_t most_hypotheses = 8;

// Enough lines to see whether something recurs.
constexpr std::size_t lines_looked_at = 400;

std::size_t num_looked_at(LineIndex const& lines) {
  return std::min(lines.count(), lines_looked_at);
}

struct MarkedLines {
  std::size_t count = 0;
  std::size_t at_edges = 0;  ///< those in front of the first line without it or behind the last
};

/// The lines that start with a marker; those that are drawn say nothing.
MarkedLines count_marked(LineIndex const& lines, view const marker) {
  MarkedLines marked;
  std::size_t run = 0;  // of marked and blank lines
  bool is_top = true;
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    bool const is_drawn = lines[i].starts_with(marker) && splitting::is_ruler(trimmed(lines[i]));
    if (is_drawn) {
      continue;
    }
    if (lines[i].starts_with(marker)) {
      ++marked.count;
      ++run;
    } else if ((is_top || run > 0) && !trimmed(lines[i]).empty()) {
      marked.at_edges += is_top ? run : 0U;
      is_top = false;
      run = 0;
    }
  }
  marked.at_edges += run;
  return marked;
}

/// The marker that starts most lines. Behind the top of the text comments are the exception, unless
/// the marker hardly stands for anything else.
std::optional<view> find_comment_marker(LineIndex const& lines) {
  std::optional<view> best;
  std::size_t most = 0;
  for (view const marker : line_markers) {
    MarkedLines const marked = count_marked(lines, marker);
    std::size_t const others = num_looked_at(lines) - marked.count;
    bool const is_exception = marked.count - marked.at_edges <= (others + 1) / 2;
    bool const is_plain_comment = marker == u"#" || marker == u"//" || marker == u"%";
    if (marked.count > most && others >= 2 && (is_exception || is_plain_comment)) {
      best = marker;
      most = marked.count;
    }
  }
  return best;
}

/// Whether the character stands in the lines that are looked at.
bool holds(LineIndex const& lines, char16_t const character) {
  std::u16string_view const head = lines.between(0, num_looked_at(lines));
  return textio::model::UnitSearch(head, {&character, 1}).find(0) < head.size();
}

/// Quotes that an odd number of lines hold an odd number of: one of them does not close where
/// quotes in a table do.
bool has_odd_quotes(LineIndex const& lines, char16_t const quote) {
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    if (std::ranges::count(lines[i], quote) % 2 != 0) {
      return true;
    }
  }
  return false;
}

/// A quote that opens a field: at a line's start or behind a delimiter, and closed in the same
/// manner later in the line.
bool opens_and_closes(view const line, char16_t const quote) {
  constexpr view around = u",;\t| \x01\x14\x1F";
  for (std::size_t pos = line.find(quote); pos != view::npos; pos = line.find(quote, pos + 1)) {
    bool const opens = pos == 0 || around.find(line[pos - 1]) != view::npos;
    std::size_t const close = line.find(quote, pos + 1);
    if (opens && close != view::npos) {
      return close + 1 == line.size() || around.find(line[close + 1]) != view::npos;
    }
  }
  return false;
}

bool has_quoted_fields(LineIndex const& lines, char16_t const quote) {
  std::size_t found = 0;
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    found += opens_and_closes(lines[i], quote) ? 1U : 0U;
  }
  return found * 4 >= num_looked_at(lines) && found > 0;
}

/// The first of the other quotes in which fields of many lines stand; 0 for none. The thorn is one
/// where delimiters are control characters.
char16_t find_other_quote(LineIndex const& lines, char16_t const usual) {
  for (char16_t const quote : view(u"'`\u00FE")) {
    if (quote != usual && holds(lines, quote) && has_quoted_fields(lines, quote)) {
      return quote;
    }
  }
  return 0;
}

/// The marker of comment lines or the two of block comments; empty for neither.
std::vector<std::u16string> find_comment_style(LineIndex const& lines) {
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    if (lines[i].starts_with(u"/*") && lines.text().find(u"*/") != view::npos) {
      return {u"/*", u"*/"};
    }
  }
  auto const marker = find_comment_marker(lines);
  return marker ? std::vector{std::u16string(*marker)} : std::vector<std::u16string>();
}

/// Each hypothesis once more, with comments.
void add_comments(std::vector<AssumedOptions>& assumed, std::vector<std::u16string> const& style) {
  if (style.empty()) {
    return;
  }
  std::size_t const without = assumed.size();
  for (std::size_t i = 0; i < without; ++i) {
    AssumedOptions with = assumed[i];
    with.hypothesis.comment_markers = style;
    with.parsing.comment_style = style;
    assumed.push_back(std::move(with));
  }
}

AssumedOptions refined(AssumedOptions const& base, std::size_t const position,
                       SyntaxGuess const& guess) {
  AssumedOptions with = base;
  with.refined = position;
  with.syntax = guess.syntax;
  with.hypothesis.syntax = guess.syntax;
  if (!guess.delimiters.empty()) {
    with.parsing.delimiters = guess.delimiters;
  }
  if (!guess.comment_markers.empty()) {
    with.hypothesis.comment_markers = guess.comment_markers;
    with.parsing.comment_style = guess.comment_markers;
  }
  return with;
}

/// Each guess at what lines have beside, with what is given and with the comments that were found:
/// these begin in the middle of what is assumed so far. Comments at the ends of lines refine those
/// at their starts where both have the same marker.
void add_syntax(std::vector<AssumedOptions>& assumed, std::vector<SyntaxGuess> const& guesses) {
  std::size_t const commented = assumed.size() / 2;
  auto const comments = assumed.back().hypothesis.comment_markers;
  for (bool const with_comments : {false, true}) {
    for (SyntaxGuess const& guess : guesses) {
      bool const is_at_ends = guess.syntax.has_end_comments;
      bool const refines_comments = is_at_ends ? guess.comment_markers == comments : with_comments;
      bool const is_wanted = with_comments ? !comments.empty() && !is_at_ends : true;
      if (is_wanted && assumed.size() < most_hypotheses) {
        std::size_t const base = refines_comments ? commented : 0;
        assumed.push_back(refined(assumed[base], base, guess));
      }
    }
  }
}

}  // namespace

std::vector<AssumedOptions> propose_hypotheses(LineIndex const& lines, Task const& task) {
  std::vector<AssumedOptions> assumed{{{}, task.parsing, task.syntax}};
  char16_t const quote = quote_of(task.parsing);
  if (!task.request.quote) {
    if (quote != 0 && holds(lines, quote) && has_odd_quotes(lines, quote)) {
      assumed.push_back({{.quotes_are_ordinary = true}, task.parsing, task.syntax});
      assumed.back().parsing.quote_characters.clear();
    }
    if (char16_t const other = find_other_quote(lines, quote); other != 0) {
      assumed.push_back({{.quote = other}, task.parsing, task.syntax});
      assumed.back().parsing.quote_characters = std::u16string(1, other);
    }
  }
  if (!task.request.comment_markers) {
    add_comments(assumed, find_comment_style(lines));
  }
  add_syntax(assumed, guess_line_syntax(lines, task));
  return assumed;
}

}  // namespace textimport::analysis
