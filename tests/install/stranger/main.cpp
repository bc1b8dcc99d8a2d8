// SPDX-License-Identifier: MIT
//
// A stranger's program: only what is installed, through the one header. Prints what was found.
#include <cstdio>
#include <cstring>

#include <text_format_detection/text_format_detection.hpp>

int main() {
  textio::parser::options const options;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const type_options;
  textio::detection::StrategySelector selector(options, type_options);
  textio::Field const sample(u"name;size\nred;1\ngreen;2\nblue;3\n");
  auto const strategy = selector.pick_strategy(sample, 250);
  std::printf("%s: %zu variables, %zu delimiters\n", textio::library_version(),
              strategy->num_variables(), strategy->options().delimiters.size());
  bool const same = std::strcmp(textio::library_version(), TEXT_FORMAT_DETECTION_VERSION) == 0;
  return same && strategy->num_variables() == 2 ? 0 : 1;
}
