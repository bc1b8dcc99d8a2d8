// SPDX-License-Identifier: MIT
//
// How much a delimiter has to prove.
#pragma once

#include <cstdint>
#include <string_view>

#include "text_import/survey/reading_internal.hpp"

namespace textimport::survey {

enum class delimiter_class : std::uint8_t {
  Usual,  ///< comma, tab, semicolon, bar, and the control characters that are made for it
  Blank,  ///< a blank or runs of them: they stand in every prose
  Rare,   ///< any other character: most of its uses have nothing to do with tables
  None,   ///< fixed widths
};

[[nodiscard]] inline delimiter_class class_of(reading const& r) noexcept {
  if (r.layout == table_layout::FixedWidth) {
    return delimiter_class::None;
  }
  if (r.layout == table_layout::SpaceAligned || r.delimiter == u" ") {
    return delimiter_class::Blank;
  }
  constexpr std::u16string_view usual = u",\t;|\x01\x1C\x1D\x1E\x1F";
  bool const is_usual =
      !r.delimiter.empty() && usual.find(r.delimiter.front()) != std::u16string_view::npos;
  return is_usual ? delimiter_class::Usual : delimiter_class::Rare;
}

}  // namespace textimport::survey
