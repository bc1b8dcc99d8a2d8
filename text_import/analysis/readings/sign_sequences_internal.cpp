// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/sign_sequences_internal.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// Enough lines to see what recurs, and as much of each.
constexpr std::size_t lines_looked_at = 100;
constexpr std::size_t units_looked_at = 4096;
constexpr std::size_t longest_sequence = 3;
constexpr std::size_t most_sequences = 4;

using Range = std::pair<char16_t, char16_t>;

// Outside ASCII: signs of Latin-1 but those of money and degrees, of Armenian, Arabic and Indian
// scripts, general punctuation to arrows, boxes and shapes, signs of East Asian scripts with their
// wide and vertical forms, and the private characters that some programs take for it.
constexpr std::array<Range, 18> foreign_signs{{{0xA6, 0xA9},
                                               {0xAB, 0xAF},
                                               {0xB4, 0xB4},
                                               {0xB6, 0xB8},
                                               {0xBB, 0xBB},
                                               {0x55A, 0x55F},
                                               {0x60C, 0x61F},
                                               {0x66A, 0x66D},
                                               {0x6D4, 0x6D4},
                                               {0x964, 0x965},
                                               {0x2010, 0x209F},
                                               {0x2100, 0x2BFF},
                                               {0x3001, 0x3003},
                                               {0x3008, 0x301F},
                                               {0xE000, 0xF8FF},
                                               {0xFE10, 0xFE6F},
                                               {0xFF01, 0xFF0F},
                                               {0xFF1A, 0xFF65}}};

constexpr bool is_foreign_sign(char16_t const c) noexcept {
  bool const is_wide_letter = (c >= 0xFF21 && c <= 0xFF3A) || (c >= 0xFF41 && c <= 0xFF5A);
  return !is_wide_letter && std::ranges::any_of(foreign_signs, [c](Range const& range) {
    return c >= range.first && c <= range.second;
  });
}

/// Whether a character may be part of a delimiter. Brackets and quotes come in pairs, and what
/// stands in numbers belongs to them.
constexpr bool is_ascii_sign(char16_t const c) noexcept {
  constexpr view signs = u"!#$%&*,/:;<=>?@\\^_`|~";
  bool const is_control = c < u' ' && c != u'\t' && c != u'\n' && c != u'\r';
  return is_control || signs.find(c) != view::npos;
}

constexpr std::array<bool, 128> ascii_signs = [] {
  std::array<bool, 128> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    table[c] = is_ascii_sign(static_cast<char16_t>(c));
  }
  return table;
}();

bool is_sign(char16_t const c) noexcept {
  return c < ascii_signs.size() ? ascii_signs[c] : is_foreign_sign(c);
}

/// How often the text stands in a line, overlaps counted once.
std::size_t count_in(view const line, view const text) noexcept {
  std::size_t count = 0;
  for (std::size_t pos = line.find(text); pos != view::npos;
       pos = line.find(text, pos + text.size())) {
    ++count;
  }
  return count;
}

/// How many of something nearly all lines hold, at least one; 0 where they do not agree.
std::size_t agreed_count(std::vector<std::size_t> counts) {
  if (counts.size() < 2) {
    return 0;
  }
  std::ranges::sort(counts);
  std::size_t const usual = counts[counts.size() / 2];
  auto const regular = static_cast<std::size_t>(std::ranges::count(counts, usual));
  return regular * 10 >= counts.size() * 9 ? usual : 0;
}

class SequenceSearch {
 public:
  explicit SequenceSearch(LineIndex const& lines) {
    std::size_t const end = std::min(lines.count(), lines_looked_at);
    for (std::size_t i = 0; i < end; ++i) {
      if (view const line = trimmed(lines[i]); !line.empty()) {
        lines_.push_back(line.substr(0, units_looked_at));
      }
    }
  }

  std::vector<std::u16string> run() {
    collect();
    std::vector<std::pair<std::size_t, std::u16string>> found;
    for (auto const& [text, num_lines] : num_lines_) {
      bool const is_usual = num_lines * 10 >= lines_.size() * 9;
      if (std::size_t const count = is_usual ? agreed_count(counts_of(text)) : 0; count > 0) {
        found.emplace_back(count, text);
      }
    }
    drop_parts(found);
    std::ranges::stable_sort(found, std::ranges::greater{}, [](auto const& each) {
      return std::pair(each.first, each.second.size());
    });
    std::vector<std::u16string> texts;
    for (std::size_t i = 0; i < std::min(found.size(), most_sequences); ++i) {
      texts.push_back(found[i].second);
    }
    return texts;
  }

 private:
  /// In how many lines each sequence stands.
  void collect() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      for (std::size_t pos = 0; pos < lines_[i].size(); ++pos) {
        if (is_sign(lines_[i][pos])) {
          pos = collect_run(i, pos);
        }
      }
    }
  }

  /// The sequences in a run of signs, of which the end comes back.
  std::size_t collect_run(std::size_t const i, std::size_t const start) {
    view const line = lines_[i];
    std::size_t end = start + 1;
    while (end < line.size() && is_sign(line[end])) {
      ++end;
    }
    for (std::size_t from = start; from < end; ++from) {
      for (std::size_t length = 1; length <= std::min(longest_sequence, end - from); ++length) {
        view const text = line.substr(from, length);
        if (length > 1 || text.front() >= ascii_signs.size()) {
          note(i, text);
        }
      }
    }
    return end;
  }

  void note(std::size_t const i, view const text) {
    auto found = num_lines_.find(text);
    if (found == num_lines_.end()) {
      if (i > lines_.size() / 10) {
        return;  // too many lines are without it
      }
      found = num_lines_.emplace(text, 0).first;
      last_line_.emplace(text, lines_.size());
    }
    auto& last = last_line_.find(text)->second;
    found->second += last == i ? 0U : 1U;
    last = i;
  }

  [[nodiscard]] std::vector<std::size_t> counts_of(view const text) const {
    std::vector<std::size_t> counts;
    counts.reserve(lines_.size());
    for (view const line : lines_) {
      counts.push_back(count_in(line, text));
    }
    return counts;
  }

  /// Whether some line holds the sign of a doubled or tripled one alone.
  [[nodiscard]] bool is_single_elsewhere(view const text) const {
    bool const is_repeated = text.find_first_not_of(text.front()) == view::npos;
    return is_repeated && std::ranges::any_of(lines_, [&](view const line) {
             return line.find(text.front()) != view::npos && line.find(text) == view::npos;
           });
  }

  /// Whether one of the signs recurs by itself and stands outside of the sequence as well: then the
  /// sequence is that sign beside empty fields or other signs.
  [[nodiscard]] bool is_accident(view const text) const {
    return std::ranges::any_of(text, [&](char16_t const& sign) {
      view const single(&sign, 1);
      std::vector<std::size_t> const all = counts_of(single);
      std::size_t const usual = agreed_count(all);
      std::size_t const inside = count_in(text, single);
      for (std::size_t i = 0; usual > 0 && i < lines_.size(); ++i) {
        if (all[i] == usual && inside * count_in(lines_[i], text) < usual) {
          return true;
        }
      }
      return false;
    });
  }

  void drop_parts(std::vector<std::pair<std::size_t, std::u16string>>& found) const {
    std::erase_if(found, [&](auto const& each) {
      return each.second.size() > 1 &&
             (is_single_elsewhere(each.second) || is_accident(each.second));
    });
    auto const all = found;
    std::erase_if(found, [&](auto const& each) {
      return std::ranges::any_of(all, [&](auto const& other) {
        return other.second.size() > each.second.size() &&
               other.second.find(each.second) != view::npos;
      });
    });
  }

  std::vector<view> lines_;
  std::map<std::u16string, std::size_t, std::less<>> num_lines_;
  std::map<std::u16string, std::size_t, std::less<>> last_line_;
};

}  // namespace

std::vector<std::u16string> recurring_signs(LineIndex const& lines) {
  return SequenceSearch(lines).run();
}

}  // namespace textimport::analysis
