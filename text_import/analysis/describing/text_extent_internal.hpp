// SPDX-License-Identifier: MIT
//
// Places in lines, counted in other units than UTF-16 code units: in characters (code points), and
// in the bytes of the file.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/format/column.hpp"

namespace textimport::analysis {

[[nodiscard]] std::size_t count_characters(std::u16string_view text) noexcept;

/// The extent between two positions (in code units) of the lines from `first` up to, not including,
/// `end`; nothing when the lines do not agree on it. A short line counts as filled up with blanks.
[[nodiscard]] std::optional<Extent> extent_in_characters(LineIndex const& lines, std::size_t first,
                                                         std::size_t end, std::size_t from,
                                                         std::size_t behind);

/// The same in bytes of an encoding; nothing for one whose characters differ in length in a way
/// that is not known here.
[[nodiscard]] std::optional<Extent> extent_in_bytes(LineIndex const& lines, std::size_t first,
                                                    std::size_t end, std::size_t from,
                                                    std::size_t behind, std::string_view encoding);

}  // namespace textimport::analysis
