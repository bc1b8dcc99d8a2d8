// SPDX-License-Identifier: MIT
//
// The families. Most repeat a short unit; the others are written out.
#include "benchmarks/hostile_texts.hpp"

#include <cstdint>
#include <vector>

namespace textio::benchmarks {

namespace {

std::u16string repeat(std::u16string_view const unit, std::size_t const length,
                      std::u16string text = {}) {
  text.reserve(length + unit.size());
  while (text.size() < length) {
    text += unit;
  }
  text.resize(length);
  return text;
}

/// Code units of which every other one is any at all and the rest are below U+0100, so that every
/// candidate delimiter is met at any length. From a generator that is the same everywhere.
std::u16string random_units(std::size_t const length) {
  std::u16string text;
  std::uint64_t state = 42;
  while (text.size() < length) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    std::uint64_t const mask = text.size() % 2 == 0 ? 0xFFFF : 0xFF;
    auto const unit = static_cast<char16_t>(state >> 48U & mask);
    text.push_back(unit == end_mark ? u' ' : unit);
  }
  return text;
}

/// The 48 characters that may be delimiters, in turn, each with a digit behind it; seven a line.
std::u16string every_candidate(std::size_t const length) {
  constexpr std::u16string_view never =
      u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789\n\r\x1A\"$'()+-@[]{}";
  std::u16string cycle;
  for (char16_t unit = 0; unit < 0x80; ++unit) {
    if (never.find(unit) == std::u16string_view::npos) {
      cycle.push_back(unit);
    }
  }
  std::u16string text;
  for (std::size_t i = 0; text.size() < length; ++i) {
    text.push_back(cycle[i % cycle.size()]);
    text += i % 7 == 6 ? u"1\n" : u"1";
  }
  text.resize(length);
  return text;
}

/// A letter, blanks up to the middle, and then lines of one letter.
std::u16string blanks_then_short_lines(std::size_t const length) {
  return repeat(u"\nx", length, u"a" + std::u16string(length / 2, u' '));
}

parser::options with_comments(std::vector<std::u16string> markers) {
  parser::options options;
  options.comment_style = std::move(markers);
  return options;
}

parser::options with_comments_and_blank_line_endings() {
  parser::options options = with_comments({u"#"});
  options.whitespace = u" \t\n";
  return options;
}

}  // namespace

std::span<HostileFamily const> hostile_families() {
  static std::vector<HostileFamily> const families{
      {"one_letter", [](std::size_t const n) { return std::u16string(n, u'a'); }, {}},
      {"one_quote_and_letters", [](std::size_t const n) { return repeat(u"a", n, u"\""); }, {}},
      {"delimiters_only", [](std::size_t const n) { return std::u16string(n, u','); }, {}},
      {"line_feeds_only", [](std::size_t const n) { return std::u16string(n, u'\n'); }, {}},
      {"blanks_only", [](std::size_t const n) { return std::u16string(n, u' '); }, {}},
      {"random_units", random_units, {}},
      {"every_candidate", every_candidate, {}},
      {"blanks_then_short_lines", blanks_then_short_lines, {}},
      {"line_feeds_as_whitespace", [](std::size_t const n) { return std::u16string(n, u'\n'); },
       with_comments_and_blank_line_endings()},
      {"lines_of_one_letter", [](std::size_t const n) { return repeat(u"x\n", n); }, {}},
      {"quote_storm", [](std::size_t const n) { return std::u16string(n, u'"'); }, {}},
      {"unclosed_quotes", [](std::size_t const n) { return repeat(u"\"a,\"\",\"b\n", n); }, {}},
      {"doubled_quotes", [](std::size_t const n) { return repeat(u"\"\"\"\",", n); }, {}},
      {"punctuation",
       [](std::size_t const n) { return repeat(u"!#%&*,./:;<=>?\\^_`|~ \t", n); },
       {}},
      {"endless_comments", [](std::size_t const n) { return repeat(u"/* \n", n); },
       with_comments({u"/*", u"*/"})},
      {"alternating_line_endings",
       [](std::size_t const n) { return repeat(u"a,b\ra,b\na,b\r\n", n); },
       {}},
  };
  return families;
}

}  // namespace textio::benchmarks
