// SPDX-License-Identifier: MIT
//
// How much a delimiter has to prove.
#pragma once

#include <cstdint>
#include <string_view>

#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/readings/usual_delimiters_internal.hpp"

namespace textimport::analysis {

enum class DelimiterClass : std::uint8_t {
  Usual,  ///< comma, tab, semicolon, bar, and the control characters that are made for it
  Blank,  ///< a blank or runs of them: they stand in every prose
  Rare,   ///< any other character: most of its uses have nothing to do with tables
  None,   ///< fixed widths
};

[[nodiscard]] inline DelimiterClass class_of(Reading const& r) noexcept {
  if (r.layout == Layout::FixedWidth) {
    return DelimiterClass::None;
  }
  if (r.layout == Layout::SpaceAligned || r.delimiter == u" ") {
    return DelimiterClass::Blank;
  }
  constexpr std::u16string_view made_for_it = u"\x01\x1C\x1D\x1E\x1F";
  std::u16string_view const first = std::u16string_view(r.delimiter).substr(0, 1);
  bool const is_usual =
      is_common(first) || (!first.empty() && made_for_it.find(first) != std::u16string_view::npos);
  return is_usual ? DelimiterClass::Usual : DelimiterClass::Rare;
}

}  // namespace textimport::analysis
