// SPDX-License-Identifier: MIT
//
// The lines of a text as an editor numbers them, whatever quotes and comments they are part of.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "cli/settings.hpp"
#include "text_format_detection/model/options.hpp"

namespace cli {

struct PhysicalLine {
  std::size_t begin = 0;  ///< code units
  std::u16string_view text;
};

/// The first lines of a text, at most `most`, as the line endings of the settings part them.
[[nodiscard]] std::vector<PhysicalLine> physical_lines(std::u16string_view text,
                                                       Settings const& settings,
                                                       std::size_t most = textio::unknown_count);

}  // namespace cli
