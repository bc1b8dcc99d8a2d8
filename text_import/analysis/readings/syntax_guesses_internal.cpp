// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/syntax_guesses_internal.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "text_import/analysis/readings/borders_internal.hpp"
#include "text_import/analysis/readings/rest_of_line_internal.hpp"
#include "text_import/analysis/readings/usual_delimiters_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/splitting/rulers_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// Enough lines to see whether something recurs.
constexpr std::size_t lines_looked_at = 150;
constexpr std::size_t words_looked_at = 50;  // lines

/// A quote behind blanks behind a delimiter.
bool has_quotes_behind_blanks(view const head, char16_t const quote) {
  for (std::size_t pos = head.find(quote); pos != view::npos; pos = head.find(quote, pos + 1)) {
    std::size_t const before = pos == 0 ? view::npos : head.find_last_not_of(u' ', pos - 1);
    if (before != view::npos && before + 1 < pos && is_common(head.substr(before, 1))) {
      return true;
    }
  }
  return false;
}

/// A backslash in front of a quote or a usual delimiter.
bool has_escapes(view const head, char16_t const quote) {
  for (std::size_t pos = head.find(u'\\'); pos != view::npos && pos + 1 < head.size();
       pos = head.find(u'\\', pos + 2)) {
    bool const is_quote = quote != 0 && head[pos + 1] == quote;
    if (is_quote || is_common(head.substr(pos + 1, 1))) {
      return true;
    }
  }
  return false;
}

/// Lines with a marker between blanks behind something else, and lines that begin with it.
struct MarkedEnds {
  std::size_t behind_data = 0;
  std::size_t at_start = 0;
  std::size_t without = 0;
};

MarkedEnds count_marked_ends(LineIndex const& lines, std::size_t const end, view const marker) {
  MarkedEnds counts;
  for (std::size_t i = 0; i < end; ++i) {
    view const line = lines[i];
    view const text = trimmed(line);
    if (text.empty()) {
      continue;
    }
    if (text.starts_with(marker)) {
      ++counts.at_start;
      continue;
    }
    std::size_t pos = line.find(marker);
    auto const is_alone = [&] {
      view const behind = line.substr(pos + marker.size());
      bool const follows_blank = line[pos - 1] == u' ' || line[pos - 1] == u'\t';
      return follows_blank && (behind.empty() || behind.front() == u' ');
    };
    while (pos != view::npos && (pos == 0 || !is_alone())) {
      pos = line.find(marker, pos + 1);
    }
    ++(pos == view::npos ? counts.without : counts.behind_data);
  }
  return counts;
}

/// The marker of comments behind data: most lines have one, or some do and others are comments.
std::optional<view> find_end_comments(LineIndex const& lines, std::size_t const end,
                                      view const held) {
  constexpr std::array<view, 4> markers{u"#", u"//", u"%", u"!"};
  for (view const marker : markers) {
    if (held.find(marker.front()) == view::npos) {
      continue;
    }
    MarkedEnds const counts = count_marked_ends(lines, end, marker);
    std::size_t const data = counts.behind_data + counts.without;
    bool const is_usual = counts.behind_data >= 2 && counts.behind_data * 5 >= data * 4;
    bool const is_known = counts.at_start > 0 && counts.behind_data * 10 >= data;
    if (counts.behind_data > 0 && (is_usual || is_known)) {
      return marker;
    }
  }
  return std::nullopt;
}

/// The characters that guesses are about, of those that the text holds.
std::u16string held_in(view const text) {
  constexpr view in_ascii = u"\\#/%!|";
  std::array<bool, 128> is_met{};
  std::u16string held;
  for (char16_t const c : text) {
    if (c < is_met.size()) {
      is_met[c] = true;
    } else if (splitting::bars.find(c) != view::npos && held.find(c) == view::npos) {
      held += c;
    }
  }
  for (char16_t const c : in_ascii) {
    held += std::u16string(is_met.at(c) ? 1 : 0, c);
  }
  return held;
}

class Guesser {
 public:
  Guesser(LineIndex const& lines, Task const& task)
      : lines_(lines),
        task_(task),
        end_(std::min(lines.count(), lines_looked_at)),
        head_(lines.between(0, end_)),
        held_(held_in(head_)),
        quote_(quote_of(task.parsing)) {}

  std::vector<SyntaxGuess> run() {
    bool const is_split = !task_.layout || *task_.layout == Layout::Delimited;
    if (is_split) {
      guess_borders();
      guess_escape();
      guess_quotes();
    }
    if (is_split || *task_.layout == Layout::SpaceAligned) {
      guess_comments();
    }
    if (!task_.layout || *task_.layout == Layout::SpaceAligned) {
      guess_rest_of_line();
    }
    return std::move(guesses_);
  }

 private:
  SyntaxGuess& add() {
    SyntaxGuess& guess = guesses_.emplace_back();
    guess.syntax = task_.syntax;
    return guess;
  }

  [[nodiscard]] bool holds(char16_t const c) const { return held_.find(c) != view::npos; }

  [[nodiscard]] bool may_escape() const {
    return !task_.request.escape.has_value() && holds(u'\\');
  }

  void guess_borders() {
    if (held_.find_first_of(splitting::bars) == view::npos) {
      return;
    }
    auto const borders = find_borders(lines_, end_);
    auto const& given = task_.request.delimiters;
    if (!borders || (!given.empty() && given.front() != borders->bars.front())) {
      return;
    }
    SyntaxGuess& guess = add();
    guess.syntax.has_outer_bars = borders->has_outer_bars;
    guess.syntax.has_rulers = borders->has_rulers;
    guess.delimiters = given.empty() ? borders->bars : given;
    if (may_escape() && head_.find(u"\\|") != view::npos) {
      guess.syntax.escape = u'\\';
    }
  }

  void guess_escape() {
    if (may_escape() && has_escapes(head_, quote_)) {
      add().syntax.escape = u'\\';
    }
  }

  void guess_quotes() {
    if (quote_ != 0 && has_quotes_behind_blanks(head_, quote_)) {
      add().syntax.quotes_behind_blanks = true;
    }
  }

  void guess_comments() {
    if (task_.request.comment_markers) {
      return;
    }
    if (auto const marker = find_end_comments(lines_, end_, held_)) {
      SyntaxGuess& guess = add();
      guess.syntax.has_end_comments = true;
      guess.comment_markers.emplace_back(*marker);
    }
  }

  void guess_rest_of_line() {
    if (std::size_t const n = fields_before_rest(lines_, std::min(end_, words_looked_at)); n > 0) {
      add().syntax.rest_of_line = n;
    }
  }

  LineIndex const& lines_;
  Task const& task_;
  std::size_t end_;
  view head_;
  std::u16string held_;  // of the characters that guesses are about
  char16_t quote_;
  std::vector<SyntaxGuess> guesses_;
};

}  // namespace

std::vector<SyntaxGuess> guess_line_syntax(LineIndex const& lines, Task const& task) {
  bool const is_said = task.request.format || task.request.engine_decides ||
                       task.layout == Layout::FixedWidth || task.layout == Layout::Lines;
  return is_said ? std::vector<SyntaxGuess>() : Guesser(lines, task).run();
}

}  // namespace textimport::analysis
