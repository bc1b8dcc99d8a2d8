// SPDX-License-Identifier: MIT
//
// The lengths of the sample's lines: are they padded to one width, and where does the block of
// equally long lines begin? `lines` holds one field for each line, as the line reader stores them.
#pragma once

#include <cstddef>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::detection {

/// The length of line r in code units; 0 for an empty line and for one past the end.
[[nodiscard]] std::size_t line_length(FieldArray const& lines, std::size_t r) noexcept;

/// Whether every line from `header_lines` on is at least as long as the longest of them is without
/// its trailing blanks, which is what blank-padded fixed-width lines look like. A blank line inside
/// the data rules it out, blank lines at the very end do not.
[[nodiscard]] bool lines_are_aligned(FieldArray const& lines, std::size_t header_lines);

/// The strategy's header lines, trimmed to the lines above the block of lines that have exactly the
/// length of the first data line. Unchanged, even past the end of the sample, when the header lines
/// are given (`detect_header_lines` is the caller's option).
[[nodiscard]] std::size_t equal_length_header(GenericStrategy const& strategy,
                                              FieldArray const& lines, bool detect_header_lines);

}  // namespace textio::detection
