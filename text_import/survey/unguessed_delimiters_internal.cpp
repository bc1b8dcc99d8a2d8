// SPDX-License-Identifier: MIT
#include "text_import/survey/unguessed_delimiters_internal.hpp"

#include <algorithm>
#include <map>
#include <set>

namespace textimport::survey {

namespace {

using view = std::u16string_view;

// Enough lines to see what recurs in every one.
constexpr std::size_t lines_looked_at = 100;

bool was_sampled(textio::detection::DetectionReport const& report, char16_t const delimiter) {
  return std::ranges::any_of(report.sampled, [&](auto const& sampled) {
    auto const& delimiters = sampled.strategy->options().delimiters;
    return delimiters.size() == 1 && delimiters.front() == view(&delimiter, 1);
  });
}

/// How often each character of a set stands in the line.
std::map<char16_t, std::size_t> count_signs(view const line, bool (*is_sign)(char16_t)) {
  std::map<char16_t, std::size_t> counts;
  for (char16_t const c : line) {
    if (is_sign(c)) {
      ++counts[c];
    }
  }
  return counts;
}

/// Signs outside ASCII that are no letters: section and pilcrow signs, broken bars, dots, arrows,
/// and the private characters that some programs take for it.
bool is_foreign_sign(char16_t const c) {
  return (c >= 0xA1 && c <= 0xBF && c != 0xAA && c != 0xBA) || (c >= 0x2010 && c <= 0x2BFF) ||
         (c >= 0xE000 && c <= 0xF8FF);
}

/// Signs that stand at least twice and equally often in all lines.
std::set<char16_t> constant_signs(sample_lines const& lines, bool (*is_sign)(char16_t)) {
  std::map<char16_t, std::size_t> common;
  bool is_first = true;
  for (std::size_t i = 0; i < std::min(lines.count(), lines_looked_at); ++i) {
    if (trimmed(lines[i]).empty()) {
      continue;
    }
    auto const counts = count_signs(lines[i], is_sign);
    if (is_first) {
      common = counts;
      is_first = false;
    }
    std::erase_if(common, [&](auto const& entry) {
      auto const here = counts.find(entry.first);
      return entry.second < 2 || here == counts.end() || here->second != entry.second;
    });
  }
  std::set<char16_t> signs;
  for (auto const& [sign, count] : common) {
    signs.insert(sign);
  }
  return signs;
}

/// Whether the character stands in pairs only, and in most lines.
bool is_doubled(sample_lines const& lines, char16_t const c) {
  std::size_t with_pairs = 0;
  std::size_t const looked_at = std::min(lines.count(), lines_looked_at);
  for (std::size_t i = 0; i < looked_at; ++i) {
    view const line = lines[i];
    std::size_t const first = line.find(c);
    with_pairs += first == view::npos ? 0U : 1U;
    for (std::size_t pos = first; pos != view::npos; pos = line.find(c, pos + 2)) {
      if (pos + 1 == line.size() || line[pos + 1] != c) {
        return false;
      }
    }
  }
  return with_pairs * 2 > looked_at;
}

}  // namespace

std::vector<std::u16string> unguessed_delimiters(sample_lines const& lines,
                                                 textio::detection::DetectionReport const& report) {
  std::vector<std::u16string> delimiters;
  for (char16_t const c : view(u",\t;|")) {
    if (!was_sampled(report, c) && lines.text().find(c) != view::npos) {
      delimiters.emplace_back(1, c);
    }
  }
  for (char16_t const c : view(u"|:;,~^#&@$")) {
    if (is_doubled(lines, c)) {
      delimiters.emplace_back(2, c);
    }
  }
  for (char16_t const c : constant_signs(lines, is_foreign_sign)) {
    delimiters.emplace_back(1, c);
  }
  return delimiters;
}

}  // namespace textimport::survey
