// SPDX-License-Identifier: MIT

#include "cli/lines.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "cli/display_text.hpp"

namespace cli {

std::string wrapped(std::string_view text, std::size_t const indent, std::size_t const width) {
  std::string lines;
  std::size_t column = indent;
  bool first_in_line = true;
  while (!text.empty()) {
    auto const end = std::min(text.find(' '), text.size());
    std::string_view const word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    std::size_t const cells = display_bytes(word).cells;
    if (!first_in_line && column + 1 + cells > width) {
      lines += "\n" + std::string(indent, ' ');
      column = indent;
      first_in_line = true;
    }
    lines += first_in_line ? "" : " ";
    lines += word;
    column += cells + (first_in_line ? 0 : 1);
    first_in_line = false;
  }
  return lines + "\n";
}

void FactLines::add(std::string_view const name, std::string_view const value) {
  constexpr std::size_t indent = 16;
  text_ += fmt::format("  {:<14}", name) + wrapped(value, indent, width_);
}

}  // namespace cli
