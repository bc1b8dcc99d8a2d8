// SPDX-License-Identifier: MIT
#include "text_import/survey/hypothesis_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace textimport::survey {

namespace {

using view = std::u16string_view;

constexpr std::array<view, 8> line_markers{u"#", u"%", u"//", u";", u"!", u"*", u"--", u"@"};

// Enough lines to see whether something recurs.
constexpr std::size_t lines_looked_at = 400;

std::size_t num_looked_at(sample_lines const& lines) {
  return std::min(lines.count(), lines_looked_at);
}

/// The marker that starts most lines, unless they are most of all lines.
std::optional<view> find_comment_marker(sample_lines const& lines) {
  std::array<std::size_t, line_markers.size()> counts{};
  std::size_t filled = 0;
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    view const line = lines[i];
    filled += trimmed(line).empty() ? 0U : 1U;
    for (std::size_t m = 0; m < line_markers.size(); ++m) {
      counts[m] += line.starts_with(line_markers[m]) ? 1U : 0U;
    }
  }
  auto const best = std::ranges::max_element(counts);
  if (*best == 0 || *best * 10 > filled * 9) {
    return std::nullopt;
  }
  return line_markers[static_cast<std::size_t>(best - counts.begin())];
}

/// Quotes that an odd number of lines hold an odd number of: one of them does not close where
/// quotes in a table do.
bool has_odd_quotes(sample_lines const& lines, char16_t const quote) {
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    if (std::ranges::count(lines[i], quote) % 2 != 0) {
      return true;
    }
  }
  return false;
}

/// An apostrophe that opens a field: at a line's start or behind a delimiter, and closed in the
/// same manner later in the line.
bool opens_and_closes(view const line, char16_t const quote) {
  constexpr view around = u",;\t| ";
  for (std::size_t pos = line.find(quote); pos != view::npos; pos = line.find(quote, pos + 1)) {
    bool const opens = pos == 0 || around.find(line[pos - 1]) != view::npos;
    std::size_t const close = line.find(quote, pos + 1);
    if (opens && close != view::npos) {
      return close + 1 == line.size() || around.find(line[close + 1]) != view::npos;
    }
  }
  return false;
}

bool has_apostrophe_quotes(sample_lines const& lines) {
  std::size_t found = 0;
  for (std::size_t i = 0; i < num_looked_at(lines); ++i) {
    found += opens_and_closes(lines[i], u'\'') ? 1U : 0U;
  }
  return found * 4 >= num_looked_at(lines) && found > 0;
}

}  // namespace

std::vector<hypothesis> propose_hypotheses(sample_lines const& lines,
                                           survey_options const& options) {
  std::vector<hypothesis> hypotheses{{"as given", options.parsing}};
  char16_t const quote = quote_of(options.parsing);
  if (!options.given.quote) {
    if (quote != 0 && has_odd_quotes(lines, quote)) {
      hypotheses.push_back({"quotes are ordinary characters", options.parsing});
      hypotheses.back().parsing.quote_characters.clear();
    }
    if (quote != u'\'' && has_apostrophe_quotes(lines)) {
      hypotheses.push_back({"apostrophes are quotes", options.parsing});
      hypotheses.back().parsing.quote_characters = u"'";
    }
  }
  auto const marker = options.given.comment ? std::nullopt : find_comment_marker(lines);
  if (marker) {
    std::size_t const without = hypotheses.size();
    for (std::size_t i = 0; i < without; ++i) {
      hypothesis with = hypotheses[i];
      with.name = "comment lines";
      with.parsing.comment_style = {std::u16string(*marker)};
      hypotheses.push_back(std::move(with));
    }
  }
  return hypotheses;
}

}  // namespace textimport::survey
