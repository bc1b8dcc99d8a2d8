// SPDX-License-Identifier: MIT
//
// The lines around the data and the first rows of a file, read as the answer says.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/answer.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Views into the sample of the answer, but for the cells.
struct Preview {
  std::vector<std::u16string_view> header_lines;
  std::vector<std::u16string_view> footer_lines;
  /// The values of each row: blanks around delimited values and quotes are taken off.
  std::vector<std::vector<std::u16string>> rows;
};

/// The options with which the answer reads the text, with the rules that the user gave in the place
/// of those that a strategy sets for itself.
[[nodiscard]] textio::parser::options reading_options(Answer const& answer,
                                                      Settings const& settings);

[[nodiscard]] Preview make_preview(Answer const& answer, Settings const& settings);

}  // namespace cli
