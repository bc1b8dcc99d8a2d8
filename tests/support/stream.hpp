// SPDX-License-Identifier: MIT
//
// A stream over a text in memory.
#pragma once

#include <cstddef>
#include <string>

#include "text_format_detection/platform/text_stream.hpp"

namespace support {

/// Delivers the text in pieces of at most `piece` code units.
[[nodiscard]] inline ostrel::io::text::stream::TextStream make_stream(std::u16string text,
                                                                      std::size_t const piece) {
  return ostrel::io::text::stream::TextStream(
      [text = std::move(text), piece, pos = std::size_t{0}](char16_t* const room,
                                                            std::size_t const capacity) mutable {
        std::size_t const length = text.copy(room, std::min(piece, capacity), pos);
        pos += length;
        return length;
      });
}

}  // namespace support
