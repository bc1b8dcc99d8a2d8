// SPDX-License-Identifier: MIT
//
// Running a reader with given rules over a text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/reading/reading_loop_internal.hpp"

namespace support {

using textio::reading::ReadLimits;

inline constexpr ReadLimits read_for_real{textio::unknown_count, textio::unknown_count, false};
inline constexpr ReadLimits read_a_sample{textio::unknown_count, textio::unknown_count, true};

/// How a text is read: the options in which it differs from the defaults belong first.
struct How {
  textio::parser::options options;
  textio::enums::StrategyMode mode = textio::enums::StrategyMode::Delimited;
  ReadLimits limits = read_for_real;
  std::size_t max_fields = textio::unknown_count;
};

/// What is read, as show() writes it, and then the parser error that ended it, if any:
///   a|b / () / c !empty_line_rule 3,0,    the record, the field and the token that it carries
[[nodiscard]] std::string read(How const& how, std::u16string_view text);

struct Row {
  std::u16string_view text;
  std::string_view expected;
};

/// Reads the text of every row so, and compares with what it expects.
void expect_readings(How const& how, std::vector<Row> const& rows);

}  // namespace support
