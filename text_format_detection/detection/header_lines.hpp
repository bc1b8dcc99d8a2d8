// SPDX-License-Identifier: MIT
//
// How many lines at the top of a sample are header lines. Strategies, which detection is built on,
// ask it: so it knows nothing but numbers, and includes nothing of this library but the export
// mark.
#pragma once

#include <cstddef>
#include <vector>

#include "text_format_detection/export.hpp"

namespace textio::detection {

/// The number of header lines at the top of a sample.
///
/// `deviations` has one entry for each non-empty line, up to the last line of the typical width:
/// how many fields that line lies off it. Positions in it are therefore not line numbers. Must not
/// be empty.
/// Looks for the sharpest bend in the running mean of the deviations, from `minimum` on; the
/// answer can be below `minimum` when no line above deviates. With `blank_delimited` every
/// deviation but the first counts at most 2: words of prose make many fields.
/// Pure; throws nothing but allocation failure.
[[nodiscard]] TFD_API std::size_t get_header_lines(std::vector<std::size_t> const& deviations,
                                                   std::size_t minimum, bool blank_delimited);

}  // namespace textio::detection
