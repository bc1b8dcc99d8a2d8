// SPDX-License-Identifier: MIT

#include "cli/option_values.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <system_error>

#include <fmt/format.h>

#include "cli/usage_error.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/display_text.hpp"

namespace cli {

namespace {

/// The whole word as a number in this base; nothing when it is none or too large.
std::optional<std::size_t> number(std::string_view const word, int const base) {
  std::size_t value = 0;
  auto const [end, error] = std::from_chars(word.begin(), word.end(), value, base);
  if (word.empty() || error != std::errc{} || end != word.end()) {
    return std::nullopt;
  }
  return value;
}

/// The character that an escape stands for; `rest` begins behind the backslash and loses what
/// belongs to it.
std::optional<char16_t> unescaped(std::u16string_view& rest) {
  if (rest.empty()) {
    return std::nullopt;
  }
  char16_t const letter = rest.front();
  rest.remove_prefix(1);
  constexpr std::u16string_view letters = u"tnr0\\";
  constexpr std::u16string_view meanings(u"\t\n\r\0\\", letters.size());
  if (auto const known = letters.find(letter); known != std::u16string_view::npos) {
    return meanings[known];
  }
  std::size_t const digits = letter == u'x' ? 2 : letter == u'u' ? 4 : 0;
  if (digits == 0 || rest.size() < digits) {
    return std::nullopt;
  }
  auto const value = number(textimport::to_utf8(rest.substr(0, digits)), 16);
  rest.remove_prefix(digits);
  return value ? std::optional(static_cast<char16_t>(*value)) : std::nullopt;
}

}  // namespace

void refuse_value(Option const option, std::string_view const value,
                  std::string_view const allowed) {
  throw UsageError(fmt::format("{} \"{}\": expected {}", flag(option),
                               textimport::display_bytes(value).utf8, allowed));
}

std::size_t count_value(Option const option, std::string_view const word, std::size_t const least,
                        std::size_t const most, std::string_view const words) {
  auto const value = number(word, 10);
  if (!value || *value < least || *value > most) {
    bool const bounded = most < textio::unknown_count - 1;
    std::string const range = bounded ? fmt::format("a whole number from {} to {}", least, most)
                                      : fmt::format("a whole number, at least {}", least);
    refuse_value(option, word, range + std::string(words));
  }
  return *value;
}

std::size_t size_value(Option const option, std::string_view const word, std::size_t const most) {
  std::size_t unit = 1;
  std::string_view digits = word;
  if (!word.empty() && (word.back() == 'K' || word.back() == 'M')) {
    unit = word.back() == 'K' ? std::size_t{1} << 10U : std::size_t{1} << 20U;
    digits.remove_suffix(1);
  }
  auto const value = number(digits, 10);
  if (!value || *value == 0 || *value > most / unit) {
    refuse_value(option, word,
                 fmt::format("a size from 1 to {}M, such as 4096, 64K or 1M", most >> 20U));
  }
  return *value * unit;
}

namespace {

/// Counts of at least 1, apart by commas; empty for anything else.
std::vector<std::size_t> counts_in(std::string_view const word) {
  std::vector<std::size_t> counts;
  for (std::size_t start = 0; start <= word.size();) {
    auto const end = std::min(word.find(',', start), word.size());
    auto const count = number(word.substr(start, end - start), 10);
    if (!count || *count == 0) {
      return {};
    }
    counts.push_back(*count);
    start = end + 1;
  }
  return counts;
}

}  // namespace

std::vector<std::size_t> widths_value(Option const option, std::string_view const word) {
  auto widths = counts_in(word);
  if (widths.empty()) {
    refuse_value(option, word, "widths of at least 1, apart by commas, such as 8,12,6");
  }
  return widths;
}

std::vector<std::size_t> lines_value(Option const option, std::string_view const word) {
  auto lines = counts_in(word);
  if (lines.empty() || !std::ranges::is_sorted(lines, std::ranges::less_equal())) {
    refuse_value(option, word,
                 "lines from 1 on, ascending and apart by commas, such as 3,4, or \"none\"");
  }
  return lines;
}

std::u16string text_value(Option const option, std::string_view const word) {
  auto const typed = textimport::from_utf8(word);
  if (!typed || typed->empty()) {
    refuse_value(option, word, "a text in UTF-8 that is not empty");
  }
  std::u16string text;
  for (std::u16string_view rest = *typed; !rest.empty();) {
    char16_t unit = rest.front();
    rest.remove_prefix(1);
    if (unit == u'\\') {
      auto const meaning = unescaped(rest);
      if (!meaning) {
        refuse_value(option, word, R"(only \t, \n, \r, \0, \\, \xHH and \uHHHH behind a \)");
      }
      unit = *meaning;
    }
    text += unit;
  }
  if (text.find(textio::end_mark) != std::u16string::npos) {
    refuse_value(option, word, "a text without U+FFFF");
  }
  return text;
}

char16_t character_value(Option const option, std::string_view const word) {
  std::u16string const text = text_value(option, word);
  if (text.size() != 1 || text.front() == u'\0') {  // NUL stands for none where characters go
    refuse_value(option, word, "one character (below U+10000, not NUL)");
  }
  return text.front();
}

char16_t mark_value(Option const option, std::string_view const word) {
  char16_t const mark = character_value(option, word);
  bool const is_letter = (mark >= u'a' && mark <= u'z') || (mark >= u'A' && mark <= u'Z');
  if (is_letter || (mark >= u'0' && mark <= u'9')) {
    refuse_value(option, word, "a character that is no letter and no digit");
  }
  return mark;
}

std::size_t choice_value(Option const option, std::string_view const word) {
  auto const words = choices(spec(option));
  auto const found = std::ranges::find(words, word);
  if (found == words.end()) {
    refuse_value(option, word, fmt::format("one of {}", fmt::join(words, ", ")));
  }
  return static_cast<std::size_t>(found - words.begin());
}

}  // namespace cli
