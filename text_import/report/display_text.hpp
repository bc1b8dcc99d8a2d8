// SPDX-License-Identifier: MIT
//
// Text of strangers' files as it may be shown on a terminal: control characters escaped, and its
// width known in cells, of which a Chinese character takes two and an accent none.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "text_import/export.hpp"

namespace textimport {

/// Text ready to be shown: UTF-8 without control characters, and the cells that it takes.
struct DisplayText {
  std::string utf8;
  std::size_t cells = 0;
};

inline constexpr std::size_t any_width = std::numeric_limits<std::size_t>::max();

/// Escapes control characters (\t, \n, \x1b), characters that are invisible or turn the direction
/// of writing (\u202e) and lone surrogates (\ud800). What needs more than `max_cells`, at least 3,
/// is cut and ends with "...".
[[nodiscard]] TEXT_IMPORT_API DisplayText display_text(std::u16string_view text,
                                                       std::size_t max_cells = any_width);

/// The same for bytes, such as a path; bytes that are no UTF-8 are escaped as \xHH.
[[nodiscard]] TEXT_IMPORT_API DisplayText display_bytes(std::string_view bytes,
                                                        std::size_t max_cells = any_width);

/// The text, followed by blanks up to `cells`, or preceded by them when it stands to the right.
[[nodiscard]] TEXT_IMPORT_API std::string pad(DisplayText const& text, std::size_t cells,
                                              bool to_the_right = false);

}  // namespace textimport
