// SPDX-License-Identifier: MIT
//
// How much a delimiter has to prove.
#pragma once

#include <cstdint>
#include <string_view>

#include "text_import/analysis/readings/reading_internal.hpp"

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
  constexpr std::u16string_view usual = u",\t;|\x01\x1C\x1D\x1E\x1F";
  bool const is_usual =
      !r.delimiter.empty() && usual.find(r.delimiter.front()) != std::u16string_view::npos;
  return is_usual ? DelimiterClass::Usual : DelimiterClass::Rare;
}

}  // namespace textimport::analysis
