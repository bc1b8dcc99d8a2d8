// SPDX-License-Identifier: MIT
#include "text_import/report/wrapping.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "text_import/report/display_text.hpp"

namespace textimport {

namespace {

/// Where the character at `begin` ends.
std::size_t character_end(std::string_view const word, std::size_t const begin) {
  std::size_t end = begin + 1;
  while (end < word.size() && (static_cast<unsigned char>(word[end]) & 0xC0U) == 0x80U) {
    ++end;
  }
  return end;
}

/// How many bytes of a word fit into so many cells: those of one character at least.
std::size_t bytes_that_fit(std::string_view const word, std::size_t const cells) {
  std::size_t taken = 0;
  std::size_t used = 0;
  while (taken < word.size()) {
    std::size_t const end = character_end(word, taken);
    used += display_bytes(word.substr(taken, end - taken)).cells;
    if (used > cells && taken > 0) {
      break;
    }
    taken = end;
  }
  return taken;
}

/// Takes words and puts them into lines.
class Lines {
 public:
  Lines(std::size_t const indent, std::size_t const width)
      : indent_(indent), width_(width), column_(indent) {}

  void add(std::string_view word) {
    std::size_t cells = display_bytes(word).cells;
    if (!is_line_empty_ && column_ + 1 + cells > width_) {
      start_line();
    }
    while (is_line_empty_ && column_ + cells > width_) {
      std::size_t const fitting = bytes_that_fit(word, width_ - column_);
      if (fitting == word.size()) {
        break;
      }
      text_ += word.substr(0, fitting);
      word.remove_prefix(fitting);
      cells = display_bytes(word).cells;
      start_line();
    }
    text_ += is_line_empty_ ? "" : " ";
    text_ += word;
    column_ += cells + (is_line_empty_ ? 0 : 1);
    is_line_empty_ = false;
  }

  [[nodiscard]] std::string take() { return std::move(text_) + "\n"; }

 private:
  void start_line() {
    text_ += "\n" + std::string(indent_, ' ');
    column_ = indent_;
    is_line_empty_ = true;
  }

  std::size_t indent_;
  std::size_t width_;
  std::size_t column_;
  bool is_line_empty_ = true;
  std::string text_;
};

}  // namespace

std::string wrapped(std::string_view text, std::size_t const indent, std::size_t const width) {
  Lines lines(indent, width);
  while (!text.empty()) {
    auto const end = std::min(text.find(' '), text.size());
    lines.add(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines.take();
}

void FactLines::add(std::string_view const name, std::string_view const value) {
  constexpr std::size_t indent = 16;
  text_ += fmt::format("  {:<14}", name) + wrapped(value, indent, width_);
}

}  // namespace textimport
