// SPDX-License-Identifier: MIT
//
// One detection over one hostile text, for counting its instructions: pick_hostile FAMILY LENGTH,
// and pick_hostile alone to list the families.
#include <charconv>
#include <cstdio>
#include <string_view>

#include "benchmarks/hostile_texts.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"

namespace {

using textio::benchmarks::hostile_families;
using textio::benchmarks::HostileFamily;

int pick(HostileFamily const& family, std::size_t const length) {
  std::u16string const text = family.make(length);
  ostrel::io::text::typedetection::TypeAnalyzerOptions const type_options;
  textio::detection::StrategySelector selector(family.options, type_options);
  auto const strategy = selector.pick_strategy(textio::Field(text), textio::unknown_count);
  std::printf("mode %u, %zu records\n", static_cast<unsigned>(strategy->mode()),
              strategy->field_array()->num_records());
  return 0;
}

}  // namespace

int main(int const argc, char const* const* const argv) {
  if (argc == 1) {
    for (HostileFamily const& family : hostile_families()) {
      std::printf("%.*s\n", static_cast<int>(family.name.size()), family.name.data());
    }
    return 0;
  }
  std::string_view const length_text = argc == 3 ? argv[2] : "";
  std::size_t length = 0;
  auto const parsed =
      std::from_chars(length_text.data(), length_text.data() + length_text.size(), length);
  for (HostileFamily const& family : hostile_families()) {
    if (parsed.ec == std::errc() && family.name == argv[1]) {
      return pick(family, length);
    }
  }
  std::fprintf(stderr, "usage: pick_hostile [FAMILY LENGTH]\n");
  return 2;
}
