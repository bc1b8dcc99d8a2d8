// SPDX-License-Identifier: MIT
#include "text_import/analysis/weighing/text_traits_internal.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_grammar_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/analysis/values/value_words_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;
using textio::platform::is_letter;
using view = std::u16string_view;

// Enough to see what a text is like.
constexpr std::size_t lines_looked_at = 60;
constexpr std::size_t units_looked_at = 240;  // of a line

// The commonest words without a meaning of their own in languages with the letters a to z, sorted.
constexpr std::array<view, 64> function_words{
    u"all", u"an",  u"and",  u"are",  u"as",    u"at",   u"be",   u"but", u"by",   u"can", u"che",
    u"con", u"das", u"del",  u"der",  u"des",   u"die",  u"du",   u"ein", u"eine", u"el",  u"est",
    u"et",  u"for", u"from", u"had",  u"has",   u"have", u"he",   u"het", u"if",   u"il",  u"in",
    u"is",  u"ist", u"it",   u"la",   u"le",    u"les",  u"los",  u"mit", u"not",  u"of",  u"on",
    u"or",  u"por", u"que",  u"that", u"the",   u"they", u"this", u"to",  u"una",  u"und", u"van",
    u"von", u"was", u"we",   u"when", u"which", u"will", u"with", u"you", u"zu"};

// How programs call the weight of what they log.
constexpr std::array<view, 10> log_levels{u"trace",   u"debug", u"info",  u"notice",   u"warn",
                                          u"warning", u"error", u"fatal", u"critical", u"severe"};

double share_of(std::size_t const part, std::size_t const whole) {
  return whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole);
}

constexpr bool is_blank(char16_t const c) {
  return c == u' ' || c == u'\t';
}

/// A mean and a spread, number by number.
struct Spread {
  double count = 0;
  double sum = 0;
  double squares = 0;

  void add(std::size_t const number) {
    auto const x = static_cast<double>(number);
    count += 1;
    sum += x;
    squares += x * x;
  }

  [[nodiscard]] double mean() const { return count == 0 ? 0 : sum / count; }

  [[nodiscard]] double relative() const {
    constexpr double most = 3;
    double const variance = std::max(0.0, squares / std::max(count, 1.0) - mean() * mean());
    return mean() == 0 ? 0 : std::min(most, std::sqrt(variance) / mean());
  }
};

/// Whether digits and signs stand as in a pattern, 0 for a digit.
bool follows(view const text, view const pattern) {
  if (text.size() < pattern.size()) {
    return false;
  }
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    bool const fits = pattern[i] == u'0'   ? is_digit(text[i])
                      : pattern[i] == u'/' ? text[i] == u'/' || text[i] == u'-' || text[i] == u'.'
                                           : text[i] == pattern[i];
    if (!fits) {
      return false;
    }
  }
  return true;
}

/// A date or a time of day among the first characters.
bool begins_with_time_stamp(view const line) {
  constexpr std::size_t reach = 24;
  view const head = line.substr(0, reach + 10);
  for (std::size_t i = 0; i < std::min(head.size(), reach); ++i) {
    bool const is_start = is_digit(head[i]) && (i == 0 || !is_digit(head[i - 1]));
    if (is_start &&
        (follows(head.substr(i), u"0000/00/00") || follows(head.substr(i), u"00:00:00") ||
         follows(head.substr(i), u"00/00/0000"))) {
      return true;
    }
  }
  return false;
}

/// How long the name is with which the line begins, if one does.
std::size_t key_length(view const line) {
  constexpr std::size_t longest = 40;
  std::size_t length = 0;
  while (length < line.size() && length <= longest &&
         (is_letter(line[length]) || is_digit(line[length]) || line[length] == u'_' ||
          line[length] == u'-' || line[length] == u'.' || line[length] == u' ')) {
    ++length;
  }
  return length > longest ? 0 : length;
}

bool is_number_word(view const word) {
  std::size_t digits = 0;
  for (char16_t const c : word) {
    bool const is_sign = c == u'.' || c == u',' || c == u'-' || c == u'+' || c == u'e' || c == u'E';
    digits += is_digit(c) ? 1U : 0U;
    if (!is_digit(c) && !is_sign) {
      return false;
    }
  }
  return digits > 0;
}

/// The kinds of ASCII characters, in one look.
enum CharacterKind : std::uint8_t { OtherSign, Letter, Digit, Blank, Comma };

constexpr std::array<std::uint8_t, 128> character_kinds = [] {
  std::array<std::uint8_t, 128> kinds{};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    auto const c = static_cast<char16_t>(i);
    kinds[i] = is_letter(c)  ? Letter
               : is_digit(c) ? Digit
               : is_blank(c) ? Blank
               : c == u','   ? Comma
                             : OtherSign;
  }
  return kinds;
}();

/// Everything outside ASCII counts as a letter.
std::uint8_t character_kind(char16_t const c) {
  return c < character_kinds.size() ? character_kinds[c] : std::uint8_t{Letter};
}

bool is_function_word(view const word) {
  constexpr std::size_t longest = 5;
  std::array<char16_t, longest> lower{};
  if (word.size() > longest) {
    return false;
  }
  std::ranges::transform(word, lower.begin(), textio::platform::to_lower);
  return std::ranges::binary_search(function_words, view(lower.data(), word.size()));
}

view without_signs(view word) {
  while (!word.empty() && !is_letter(word.back()) && word.back() < 128) {
    word.remove_suffix(1);
  }
  while (!word.empty() && !is_letter(word.front()) && word.front() < 128) {
    word.remove_prefix(1);
  }
  return word;
}

/// Adds up line by line.
class TraitCount {
 public:
  void add(view const whole) {
    ++lines_;
    view const line = trimmed(whole.substr(0, units_looked_at));
    if (line.empty()) {
      return;
    }
    ++filled_;
    count(indented_, is_blank(whole.front()));
    add_edges(line);
    add_characters(line);
    add_words(line);
    lengths_.add(line.size());
  }

  TextTraits result() {
    std::ranges::sort(patterns_);
    patterns_.erase(std::unique(patterns_.begin(), patterns_.end()), patterns_.end());
    return {.sentence_ends = of_lines(sentence_ends_),
            .function_words = share_of(function_words_, words_),
            .number_words = share_of(number_words_, words_),
            .time_stamps = of_lines(time_stamps_),
            .colon_keys = of_lines(colon_keys_),
            .equals_keys = of_lines(equals_keys_),
            .tags = of_lines(tags_),
            .code_ends = of_lines(code_ends_),
            .indented = of_lines(indented_),
            .blank_lines = share_of(lines_ - filled_, lines_),
            .letters = share_of(letters_, characters_),
            .digits = share_of(digits_, characters_),
            .wide_gaps = of_lines(wide_gaps_),
            .comma_blanks = share_of(comma_blanks_, commas_),
            .prose_lines = of_lines(prose_lines_),
            .patterns = of_lines(patterns_.size()),
            .length_spread = lengths_.relative(),
            .words_spread = words_a_line_.relative(),
            .words_a_line = words_a_line_.mean(),
            .addresses = of_lines(addresses_),
            .log_lines = of_lines(log_lines_),
            .log_levels = of_lines(level_lines_),
            .single_values = of_lines(single_values_),
            .leaders = of_lines(leaders_),
            .pair_words = share_of(pair_words_, words_),
            .filled_lines = filled_};
  }

 private:
  static constexpr std::size_t longest_value = 40;

  static void count(std::size_t& number, bool const is_one) { number += is_one ? 1U : 0U; }

  [[nodiscard]] double of_lines(std::size_t const number) const {
    return share_of(number, filled_);
  }

  void add_edges(view const line) {
    view const last = line.substr(line.size() - 1);
    count(sentence_ends_, view(u".?!:").find(last) != view::npos);
    count(code_ends_, view(u"{};>").find(last) != view::npos || line.front() == u'}' ||
                          line.front() == u'<' || line.front() == u'{');
    is_stamped_ = begins_with_time_stamp(line);
    count(time_stamps_, is_stamped_);
    count(tags_, line.find(u"</") != view::npos || line.find(u"/>") != view::npos);
    count(addresses_, line.front() == u'/' || line.find(u"://") != view::npos);
    count(leaders_, line.find(u"....") != view::npos);
    count(single_values_,
          line.size() <= longest_value && is_typed(grammar_.look_at_type(line).shape));
    std::size_t const key = key_length(line);
    view const behind = line.substr(key);
    count(colon_keys_,
          key > 0 && behind.starts_with(u":") && (behind.size() == 1 || is_blank(behind[1])));
    count(equals_keys_, key > 0 && behind.starts_with(u"="));
  }

  /// The pattern of a line is made of its signs, each run of letters and digits being one.
  void add_characters(view const line) {
    std::uint64_t pattern = 14695981039346656037U;  // FNV-1a
    bool in_word = false;
    bool has_gap = false;
    std::array<std::size_t, 5> kinds{};
    std::uint8_t kind = character_kind(line.front());
    for (std::size_t i = 0; i < line.size(); ++i) {
      std::uint8_t const next =
          i + 1 < line.size() ? character_kind(line[i + 1]) : std::uint8_t{OtherSign};
      ++kinds[kind];
      bool const is_word = kind == Letter || kind == Digit;
      if (!is_word || !in_word) {
        pattern = (pattern ^ (is_word ? u'a' : line[i])) * 1099511628211U;
      }
      in_word = is_word;
      has_gap = has_gap || (kind == Blank && next == Blank);
      comma_blanks_ += kind == Comma && next == Blank ? 1U : 0U;
      kind = next;
    }
    letters_ += kinds[Letter];
    digits_ += kinds[Digit];
    commas_ += kinds[Comma];
    characters_ += line.size();
    count(wide_gaps_, has_gap);
    patterns_.push_back(pattern);
  }

  void add_words(view const line) {
    std::size_t words = 0;
    std::size_t small = 0;
    bool has_level = false;
    for (std::size_t pos = 0; pos < line.size();) {
      std::size_t end = pos;
      while (end < line.size() && !is_blank(line[end])) {
        ++end;
      }
      view const word = line.substr(pos, end - pos);
      ++words;
      bool const is_small = is_small_word(word);
      small += is_small ? 1U : 0U;
      has_level = has_level || is_level(word);
      std::size_t const equals = word.find(u'=');
      count(pair_words_, equals != view::npos && equals > 0 && is_letter(word.front()));
      count(number_words_, is_number_word(word));
      count(function_words_, is_small && is_function_word(without_signs(word)));
      pos = end;
      while (pos < line.size() && is_blank(line[pos])) {
        ++pos;
      }
    }
    words_ += words;
    words_a_line_.add(words);
    count(prose_lines_, words >= 6 && small * 2 > words);
    count(log_lines_, is_stamped_ && small >= 2);
    count(level_lines_, has_level);
  }

  /// In capital letters as a whole, but for signs round it.
  static bool is_level(view const word) {
    view const inner = without_signs(word);
    return inner.size() >= 4 && inner.front() <= u'Z' && inner.back() <= u'Z' &&
           is_one_of(inner, log_levels);
  }

  /// A word of letters but for signs at its ends.
  static bool is_small_word(view const word) {
    view const inner = without_signs(word);
    return !inner.empty() && inner.size() + 2 >= word.size() &&
           std::ranges::all_of(inner, [](char16_t const c) {
             return (c >= u'a' && c <= u'z') || c >= 128 || c == u'\'' || is_letter(c);
           });
  }

  bool is_stamped_ = false;  // the line that is looked at
  std::size_t lines_ = 0;
  std::size_t filled_ = 0;
  std::size_t sentence_ends_ = 0;
  std::size_t time_stamps_ = 0;
  std::size_t colon_keys_ = 0;
  std::size_t equals_keys_ = 0;
  std::size_t tags_ = 0;
  std::size_t code_ends_ = 0;
  std::size_t indented_ = 0;
  std::size_t wide_gaps_ = 0;
  std::size_t prose_lines_ = 0;
  std::size_t addresses_ = 0;
  std::size_t words_ = 0;
  std::size_t single_values_ = 0;
  std::size_t leaders_ = 0;
  ValueGrammar grammar_{u'"', {}};
  std::size_t log_lines_ = 0;
  std::size_t level_lines_ = 0;
  std::size_t pair_words_ = 0;
  std::size_t number_words_ = 0;
  std::size_t function_words_ = 0;
  std::size_t characters_ = 0;
  std::size_t letters_ = 0;
  std::size_t digits_ = 0;
  std::size_t commas_ = 0;
  std::size_t comma_blanks_ = 0;
  std::vector<std::uint64_t> patterns_;
  Spread lengths_;
  Spread words_a_line_;
};

}  // namespace

TextTraits find_text_traits(LineIndex const& lines) {
  TraitCount traits;
  for (std::size_t i = 0; i < std::min(lines.count(), lines_looked_at); ++i) {
    traits.add(lines[i]);
  }
  return traits.result();
}

}  // namespace textimport::analysis
