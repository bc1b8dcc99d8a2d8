// SPDX-License-Identifier: MIT
//
// Two things tell how many fields there are: names above the columns, of which the last stands
// where the rest of each line begins; or that most lines have that many words and none has fewer.
// Either way something before the rest has to say more than text, line after line: the words of
// prose do not.
#include "text_import/analysis/readings/rest_of_line_internal.hpp"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr std::size_t least_fields = 3;
constexpr std::size_t least_lines = 3;
// Words behind these are the rest of any line.
constexpr std::size_t most_words = 40;

struct WordLine {
  view text;
  std::vector<std::size_t> starts;  // of its words
};

WordLine words_of(view const line) {
  WordLine words{line, {}};
  bool in_word = false;
  for (std::size_t pos = 0; pos < line.size() && words.starts.size() < most_words; ++pos) {
    bool const is_blank = line[pos] == u' ' || line[pos] == u'\t';
    if (!is_blank && !in_word) {
      words.starts.push_back(pos);
    }
    in_word = !is_blank;
  }
  return words;
}

view word(WordLine const& line, std::size_t const n) {
  view const rest = line.text.substr(line.starts[n]);
  return rest.substr(0, rest.find_first_of(u" \t"));
}

/// Digits, and what stands in numbers, sizes, dates and times.
bool is_numeric(view const text) {
  return std::ranges::any_of(text, textio::platform::is_digit) &&
         text.find_first_not_of(u"0123456789.,:-+/%KMGTB") == view::npos;
}

/// Whether at least two of the words in front of the nth are numbers in all lines.
bool has_typed_columns(std::vector<WordLine> const& lines, std::size_t const first,
                       std::size_t const n) {
  std::size_t typed = 0;
  for (std::size_t column = 0; column + 1 < n; ++column) {
    auto const is_number = [&](WordLine const& line) {
      return line.starts.size() > column && is_numeric(word(line, column));
    };
    auto const numbers =
        std::count_if(lines.begin() + static_cast<std::ptrdiff_t>(first), lines.end(), is_number);
    typed += static_cast<std::size_t>(numbers) * 10 >= (lines.size() - first) * 9 ? 1U : 0U;
  }
  return typed >= 2;
}

/// As many as there are names, when the rest begins below the last of them and is longer at times.
std::size_t by_names(std::vector<WordLine> const& lines) {
  WordLine const& names = lines.front();
  std::size_t const n = names.starts.size();
  if (n < least_fields || lines.size() <= least_lines) {
    return 0;
  }
  for (std::size_t i = 0; i < n; ++i) {
    if (is_numeric(word(names, i))) {
      return 0;
    }
  }
  std::size_t below = 0;
  bool has_more = false;
  for (WordLine const& line : lines) {
    below += line.starts.size() >= n && line.starts[n - 1] == names.starts[n - 1] ? 1U : 0U;
    has_more = has_more || line.starts.size() > n;
  }
  return has_more && below * 10 >= lines.size() * 8 && has_typed_columns(lines, 1, n) ? n : 0;
}

/// Whether the nth word begins at the same place in nearly all lines.
bool begins_at_one_place(std::vector<WordLine> const& lines, std::size_t const first,
                         std::size_t const n) {
  std::map<std::size_t, std::size_t> places;
  std::size_t most = 0;
  for (std::size_t i = first; i < lines.size(); ++i) {
    most = std::max(most, ++places[lines[i].starts[n - 1]]);
  }
  return most * 10 >= (lines.size() - first) * 8;
}

/// As many as most lines have, when none but one on top has fewer, and some behind the first of
/// them have more: the words of names are counted in front.
std::size_t by_most_lines(std::vector<WordLine> const& lines) {
  std::size_t const first = lines.front().starts.size() < least_fields ? 1 : 0;
  std::size_t fewest = most_words;
  for (std::size_t i = first; i < lines.size(); ++i) {
    fewest = std::min(fewest, lines[i].starts.size());
  }
  std::size_t usual = 0;
  bool has_more = false;
  for (std::size_t i = first; i < lines.size(); ++i) {
    bool const is_usual = lines[i].starts.size() == fewest;
    usual += is_usual ? 1U : 0U;
    has_more = has_more || (usual > 0 && !is_usual);
  }
  std::size_t const num_lines = lines.size() - first;
  bool const is_listing =
      fewest >= least_fields && num_lines >= least_lines && has_more && usual * 2 >= num_lines;
  return is_listing && begins_at_one_place(lines, first, fewest) &&
                 has_typed_columns(lines, first, fewest)
             ? fewest
             : 0;
}

}  // namespace

std::size_t fields_before_rest(LineIndex const& lines, std::size_t const end) {
  constexpr std::size_t most_short = 5;  // lines that are blank, titles or sums
  std::vector<WordLine> filled;
  std::size_t too_short = 0;
  for (std::size_t i = 0; i < end; ++i) {
    auto words = words_of(lines[i]);
    too_short += words.starts.size() < least_fields ? 1U : 0U;
    if (too_short > most_short) {
      return 0;
    }
    if (!words.starts.empty()) {
      filled.push_back(std::move(words));
    }
  }
  if (filled.size() < least_lines) {
    return 0;
  }
  std::size_t const n = by_names(filled);
  return n > 0 ? n : by_most_lines(filled);
}

}  // namespace textimport::analysis
