// SPDX-License-Identifier: MIT
#include "text_import/analysis/lines/line_index.hpp"

#include <algorithm>
#include <cstdint>

#include "text_format_detection/model/unit_search_internal.hpp"

namespace textimport {

namespace {

using textio::model::UnitSearch;

/// The first characters of the line endings: where a line may end.
std::u16string first_units(std::vector<std::u16string> const& line_endings) {
  std::u16string units;
  for (std::u16string const& ending : line_endings) {
    if (!ending.empty() && units.find(ending.front()) == std::u16string::npos) {
      units += ending.front();
    }
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

/// Blocks of a fixed length are what a compiler turns into instructions that take many units.
bool consists_of_ascii(std::u16string_view text) {
  constexpr std::size_t block = 256;
  constexpr unsigned behind_ascii = 0x80;
  unsigned all = 0;
  for (; text.size() >= block; text.remove_prefix(block)) {
    std::uint16_t bits = 0;
    for (std::size_t i = 0; i < block; ++i) {
      bits = static_cast<std::uint16_t>(bits | text[i]);
    }
    all |= bits;
  }
  for (char16_t const c : text) {
    all |= c;
  }
  return all < behind_ascii;
}

}  // namespace

LineIndex::LineIndex(std::u16string_view const text,
                     std::vector<std::u16string> const& line_endings)
    : text_(text) {
  UnitSearch search(text, first_units(line_endings));
  std::size_t start = 0;
  std::size_t pos = 0;
  while (start < text_.size()) {
    pos = search.find(pos);
    if (pos < text_.size() && text_[pos] == textio::end_mark) {
      text_ = text_.substr(0, pos);
      if (start == pos) {
        break;
      }
    }
    std::size_t const length = ending_length(text_.substr(pos), line_endings);
    if (length == 0 && pos < text_.size()) {
      ++pos;
      continue;
    }
    starts_.push_back(start);
    ends_.push_back(pos);
    pos += length;
    start = pos;
  }
  is_ascii_ = consists_of_ascii(text_);
}

std::u16string LineIndex::held_of(std::u16string_view const wanted) const {
  std::u16string left(wanted);
  std::u16string held;
  for (std::size_t pos = 0; !left.empty();) {
    pos = UnitSearch(text_, left).find(pos);
    if (pos == text_.size()) {
      break;
    }
    held += text_[pos];
    std::erase(left, text_[pos]);
  }
  return held;
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
