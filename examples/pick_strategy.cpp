// SPDX-License-Identifier: MIT
#include <iostream>
#include <string>

#include <text_format_detection/text_format_detection.hpp>

int main() {
  std::u16string const text =
      u"Tide gauge North Pier, March\n"
      u"2024-03-01; 412; 6.4\n"
      u"2024-03-02; 398; 6.1\n"
      u"2024-03-03; 405; 6.6\n";
  textio::parser::options options;
  options.decimal_separator = u'.';  // the decimal mark is no delimiter
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;

  textio::detection::StrategySelector selector(options, types);
  auto const strategy = selector.pick_strategy(textio::Field(text), textio::unknown_count);
  std::cout << strategy->header_lines() << " header line, " << strategy->num_variables()
            << " columns:";
  for (unsigned char const type : strategy->column_types()) {
    std::cout << ' ' << static_cast<int>(type);  // the codes of textio::enums::ColumnType
  }
  std::cout << '\n';
}
