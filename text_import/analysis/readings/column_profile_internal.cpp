// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/column_profile_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// Wider lines are profiled up to here.
constexpr std::size_t max_positions = 4096;

// Signs that are a kind of their own; behind them come digits, letters and everything else.
constexpr view kinds = u" .,-+:/|*";
constexpr std::size_t digit_kind = kinds.size();
constexpr std::size_t letter_kind = digit_kind + 1;
constexpr std::size_t other_kind = digit_kind + 2;

constexpr std::size_t find_kind(char16_t const c) {
  if (c == u'\t') {
    return 0;
  }
  if (std::size_t const kind = kinds.find(c); kind != view::npos) {
    return kind;
  }
  if (textio::platform::is_digit(c)) {
    return digit_kind;
  }
  return textio::platform::is_letter(c) ? letter_kind : other_kind;
}

constexpr std::array<std::uint8_t, 128> ascii_kinds = [] {
  std::array<std::uint8_t, 128> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    table[c] = static_cast<std::uint8_t>(find_kind(static_cast<char16_t>(c)));
  }
  return table;
}();

/// Everything outside ASCII counts as a letter.
std::size_t kind_of(char16_t const c) {
  return c < ascii_kinds.size() ? ascii_kinds[c] : letter_kind;
}

view without_trailing_blanks(view const line) {
  std::size_t const last = line.find_last_not_of(u" \t");
  return line.substr(0, last == view::npos ? 0 : last + 1);
}

/// The median.
std::size_t usual_length_of(std::vector<std::size_t> lengths) {
  auto const middle = lengths.begin() + static_cast<std::ptrdiff_t>((lengths.size() - 1) / 2);
  std::ranges::nth_element(lengths, middle);
  return *middle;
}

/// The share of lengths that differ from the usual one by two at most.
double share_of_usual(std::vector<std::size_t> const& lengths) {
  std::size_t const usual = usual_length_of(lengths);
  auto const is_usual = [&](std::size_t const n) { return n + 2 >= usual && n <= usual + 2; };
  return static_cast<double>(std::ranges::count_if(lengths, is_usual)) /
         static_cast<double>(lengths.size());
}

}  // namespace

ColumnProfile::ColumnProfile(std::vector<view> const& lines) : num_lines_(lines.size()) {
  if (lines.empty()) {
    return;
  }
  std::vector<view> filled;
  std::vector<std::size_t> lengths;
  std::vector<std::size_t> padded_lengths;
  for (view const line : lines) {
    filled.push_back(without_trailing_blanks(line).substr(0, max_positions));
    lengths.push_back(filled.back().size());
    padded_lengths.push_back(line.size());
  }
  equal_lengths_ = std::max(share_of_usual(lengths), share_of_usual(padded_lengths));
  usual_length_ = usual_length_of(lengths);
  counts_.resize(*std::ranges::max_element(lengths));
  for (view const line : filled) {
    for (std::size_t pos = 0; pos < line.size(); ++pos) {
      ++counts_[pos][kind_of(line[pos])];
    }
  }
  agreement_ = agreement_before(usual_length_);
}

double ColumnProfile::agreement_before(std::size_t const position) const noexcept {
  std::size_t const third = position / 3;
  return std::min({agreement_between(0, third), agreement_between(third, 2 * third),
                   agreement_between(2 * third, position)});
}

double ColumnProfile::agreement_between(std::size_t const first,
                                        std::size_t const end) const noexcept {
  KindCounts all{};
  double agreed = 0;
  double total = 0;
  for (std::size_t pos = first; pos < end; ++pos) {
    double here = 0;
    double squares = 0;
    for (std::size_t kind = 0; kind < num_kinds; ++kind) {
      double const count = counts_[pos][kind];
      all[kind] += counts_[pos][kind];
      here += count;
      squares += count * count;
    }
    agreed += here > 0 ? squares / here : 0;
    total += here;
  }
  double expected = 0;
  for (std::uint32_t const count : all) {
    expected += static_cast<double>(count) * static_cast<double>(count) / std::max(total, 1.0);
  }
  return total - expected < 1e-6 * total || total == 0 ? 0
                                                       : (agreed - expected) / (total - expected);
}

std::size_t ColumnProfile::filled_at(std::size_t const position) const noexcept {
  KindCounts const& counts = counts_[position];
  std::size_t filled = 0;
  for (std::size_t kind = 1; kind < num_kinds; ++kind) {
    filled += counts[kind];
  }
  return filled;
}

bool ColumnProfile::fits(view const line, std::size_t const end) const noexcept {
  view const text = without_trailing_blanks(line).substr(0, std::min(end, counts_.size()));
  std::size_t rare = 0;
  for (std::size_t pos = 0; pos < text.size(); ++pos) {
    std::size_t const kind = kind_of(text[pos]);
    rare += kind != 0 && std::size_t{counts_[pos][kind]} * 20 < num_lines_ ? 1U : 0U;
  }
  return rare * 8 <= text.size();
}

bool ColumnProfile::is_mostly_digit(std::size_t const position) const noexcept {
  return std::size_t{counts_[position][digit_kind]} * 10 >= num_lines_ * 9;
}

bool ColumnProfile::is_gutter(std::size_t const first, std::size_t const end) const noexcept {
  constexpr std::size_t few_lines = 3;
  return num_lines_ > few_lines || end - first > 1 || is_mostly_digit(first - 1) ||
         is_mostly_digit(end);
}

std::vector<std::size_t> ColumnProfile::starts_of_digits() const {
  std::vector<std::size_t> starts{0};
  for (std::size_t pos = 1; pos < counts_.size(); ++pos) {
    if (is_mostly_digit(pos) && !is_mostly_digit(pos - 1)) {
      starts.push_back(pos);
    }
  }
  return starts;
}

std::vector<std::size_t> ColumnProfile::starts_behind_blanks(std::size_t const exceptions) const {
  std::vector<std::size_t> starts{0};
  std::size_t gap_start = 0;
  bool in_gap = true;
  bool has_column = false;  // a filled position was met
  for (std::size_t pos = 0; pos < std::min(counts_.size(), usual_length_); ++pos) {
    bool const is_blank = filled_at(pos) <= exceptions;
    if (is_blank && !in_gap) {
      gap_start = pos;
    } else if (!is_blank && in_gap && has_column && is_gutter(gap_start, pos)) {
      starts.push_back(pos);
    }
    has_column = has_column || !is_blank;
    in_gap = is_blank;
  }
  return starts;
}

}  // namespace textimport::analysis
