// SPDX-License-Identifier: MIT
#include "text_import/analysis/lines/line_index.hpp"

#include <algorithm>

namespace textimport {

namespace {

/// The first characters of the line endings: where a line may end.
std::u16string first_units(std::vector<std::u16string> const& line_endings) {
  std::u16string units;
  for (std::u16string const& ending : line_endings) {
    units += ending.substr(0, 1);
  }
  return units;
}

/// The length of the line ending at the start of the text, 0 for none.
std::size_t ending_length(std::u16string_view const text,
                          std::vector<std::u16string> const& line_endings) {
  auto const found = std::ranges::find_if(line_endings, [&](std::u16string const& ending) {
    return !ending.empty() && text.starts_with(ending);
  });
  return found == line_endings.end() ? 0 : found->size();
}

}  // namespace

LineIndex::LineIndex(std::u16string_view const text,
                     std::vector<std::u16string> const& line_endings)
    : text_(text) {
  for (char16_t const c : text) {
    if (c < held_.size()) {
      held_[c] = true;
    } else {
      is_ascii_ = false;
    }
  }
  std::u16string const firsts = first_units(line_endings);
  char16_t const highest = firsts.empty() ? u'\0' : std::ranges::max(firsts);
  auto const may_end_line = [&](char16_t const c) {
    return c <= highest && firsts.find(c) != std::u16string::npos;
  };
  std::size_t start = 0;
  std::size_t pos = 0;
  while (start < text.size()) {
    while (pos < text.size() && !may_end_line(text[pos])) {
      ++pos;
    }
    std::size_t const length = ending_length(text.substr(pos), line_endings);
    if (length == 0 && pos < text.size()) {
      ++pos;
      continue;
    }
    starts_.push_back(start);
    ends_.push_back(pos);
    pos += length;
    start = pos;
  }
}

std::size_t LineIndex::line_at(std::size_t const offset) const noexcept {
  auto const behind = std::ranges::upper_bound(starts_, offset);
  return behind == starts_.begin() ? 0 : static_cast<std::size_t>(behind - starts_.begin()) - 1;
}

Position LineIndex::position_of(std::size_t const offset) const noexcept {
  std::size_t const line = line_at(offset);
  return {offset, line, offset - start(line)};
}

}  // namespace textimport
