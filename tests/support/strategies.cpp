// SPDX-License-Identifier: MIT
#include "tests/support/strategies.hpp"

namespace support {

std::shared_ptr<textio::GenericStrategy> make_strategy(
    std::string const& layout, textio::parser::options const& how,
    textio::GenericStrategy::TypeAnalyzerOptions const& types, json const& argument) {
  using textio::DelimitedStrategy;
  if (layout == "space_aligned") {
    return std::make_shared<textio::SpaceAlignedStrategy>(how, types);
  }
  if (layout == "fixed_width") {
    return std::make_shared<textio::FixedWidthStrategy>(
        how, types, value_of<std::vector<std::size_t>>(argument));
  }
  if (layout != "delimited") {
    return std::make_shared<textio::LineReaderStrategy>(how, types);
  }
  if (argument.is_null()) {
    return std::make_shared<DelimitedStrategy>(how, types);
  }
  if (argument.is_string()) {
    return std::make_shared<DelimitedStrategy>(how, types, value_of<char16_t>(argument));
  }
  return std::make_shared<DelimitedStrategy>(how, types,
                                             value_of<std::vector<std::u16string>>(argument));
}

}  // namespace support
