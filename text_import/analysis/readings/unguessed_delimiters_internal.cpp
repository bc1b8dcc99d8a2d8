// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/unguessed_delimiters_internal.hpp"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "text_import/analysis/readings/usual_delimiters_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport::analysis {

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
std::set<char16_t> constant_signs(LineIndex const& lines, bool (*is_sign)(char16_t)) {
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

/// The characters of a set of ASCII ones that stand in pairs only, and in most lines.
std::u16string doubled_signs(LineIndex const& lines, view const signs) {
  std::size_t const looked_at = std::min(lines.count(), lines_looked_at);
  std::u16string left(signs);
  std::vector<std::size_t> lines_with(signs.size(), 0);
  std::array<bool, 128> is_wanted{};
  for (char16_t const c : signs) {
    is_wanted.at(c) = true;
  }
  for (std::size_t i = 0; i < looked_at && !left.empty(); ++i) {
    view const line = lines[i];
    std::u16string met;
    for (std::size_t pos = 0; pos < line.size(); ++pos) {
      char16_t const c = line[pos];
      if (c >= is_wanted.size() || !is_wanted[c] || left.find(c) == view::npos) {
        continue;
      }
      if (pos + 1 == line.size() || line[pos + 1] != c) {
        std::erase(left, c);
        continue;
      }
      ++pos;
      if (met.find(c) == view::npos) {
        met += c;
        ++lines_with[signs.find(c)];
      }
    }
  }
  std::erase_if(left, [&](char16_t const c) { return lines_with[signs.find(c)] * 2 <= looked_at; });
  return left;
}

}  // namespace

TextDelimiters find_text_delimiters(LineIndex const& lines) {
  TextDelimiters found{lines.held_of(common_delimiters), {}};
  for (char16_t const c : doubled_signs(lines, u"|:;,~^#&@$")) {
    found.unusual.emplace_back(2, c);
  }
  if (!lines.is_ascii()) {
    for (char16_t const c : constant_signs(lines, is_foreign_sign)) {
      found.unusual.emplace_back(1, c);
    }
  }
  return found;
}

std::vector<std::u16string> unguessed_delimiters(TextDelimiters const& text,
                                                 textio::detection::DetectionReport const& report) {
  std::vector<std::u16string> delimiters;
  for (char16_t const c : common_delimiters) {
    if (text.common.find(c) != view::npos && !was_sampled(report, c)) {
      delimiters.emplace_back(1, c);
    }
  }
  delimiters.insert(delimiters.end(), text.unusual.begin(), text.unusual.end());
  return delimiters;
}

}  // namespace textimport::analysis
