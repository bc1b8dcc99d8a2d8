// SPDX-License-Identifier: MIT

#include "cli/physical_lines.hpp"

#include <algorithm>
#include <string>

namespace cli {

std::vector<PhysicalLine> physical_lines(std::u16string_view const text, Settings const& settings,
                                         std::size_t const most) {
  auto const& endings = settings.parsing.line_endings;
  std::u16string firsts;
  for (std::u16string const& ending : endings) {
    firsts += ending.front();
  }
  std::vector<PhysicalLine> lines;
  std::size_t begin = 0;
  std::size_t pos = 0;
  while (begin < text.size() && lines.size() < most) {
    pos = std::min(text.find_first_of(firsts, pos), text.size());
    auto const ending = std::ranges::find_if(
        endings, [&](std::u16string const& e) { return text.substr(pos).starts_with(e); });
    if (ending == endings.end() && pos < text.size()) {
      ++pos;
      continue;
    }
    lines.push_back({begin, text.substr(begin, pos - begin)});
    pos += ending == endings.end() ? 0 : ending->size();
    begin = pos;
  }
  return lines;
}

}  // namespace cli
