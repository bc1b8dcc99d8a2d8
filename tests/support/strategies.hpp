// SPDX-License-Identifier: MIT
//
// The four kinds of strategy by their names.
#pragma once

#include <memory>
#include <string>

#include "tests/support/json.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace support {

/// `layout` is "delimited", "space_aligned", "fixed_width" or else the line reader. The argument:
/// one delimiter as a string, a list of them, or null for those of the options; widths.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> make_strategy(
    std::string const& layout, textio::parser::options const& how,
    textio::GenericStrategy::TypeAnalyzerOptions const& types, json const& argument);

}  // namespace support
