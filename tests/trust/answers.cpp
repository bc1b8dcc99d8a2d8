// SPDX-License-Identifier: MIT
//
// One line for each file of UTF-16LE units that is named: the answer, its score bit by bit. Decides
// on two threads with selectors of their own and fails unless both answer alike. Sets the locale of
// the environment first, and uses nothing of the C++ library but what is compiled into it, so that
// it can be looked at by tools that want to have compiled everything they see.
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "text_format_detection/text_format_detection.hpp"

namespace {

using Words = std::vector<std::uint64_t>;

textio::parser::options const options;
ostrel::io::text::typedetection::TypeAnalyzerOptions const types;

std::uint64_t bits_of(double const value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

bool read(char const* const path, std::vector<char16_t>& units) {
  std::FILE* const file = std::fopen(path, "rb");
  if (file == nullptr) {
    return false;
  }
  std::size_t length = 0;
  do {
    units.resize(length + 4096);
    length += std::fread(units.data() + length, sizeof(char16_t), 4096, file);
  } while (length == units.size());
  units.resize(length);
  return std::fclose(file) == 0;
}

void decide(std::vector<char16_t> const& units, Words& answer) {
  textio::detection::StrategySelector selector(options, types);
  auto const strategy = selector.pick_strategy({units.data(), units.size()}, 250);
  auto const& score = strategy->valuation();
  answer = {static_cast<std::uint64_t>(strategy->mode()),
            strategy->header_lines(),
            strategy->num_variables(),
            score.num_records,
            static_cast<std::uint64_t>(score.typed_columns),
            bits_of(score.mean_deviation),
            bits_of(score.data_variation)};
  for (auto const& delimiter : strategy->options().delimiters) {
    answer.insert(answer.end(), delimiter.begin(), delimiter.end());
  }
  answer.insert(answer.end(), strategy->options().column_widths.begin(),
                strategy->options().column_widths.end());
  answer.insert(answer.end(), strategy->column_types().begin(), strategy->column_types().end());
}

}  // namespace

int main(int const argc, char const* const* const argv) {
  if (std::setlocale(LC_ALL, "") == nullptr) {
    std::fprintf(stderr, "answers: the locale is not installed\n");
    return 2;
  }
  for (int i = 1; i < argc; ++i) {
    std::vector<char16_t> units;
    if (!read(argv[i], units)) {
      std::fprintf(stderr, "answers: cannot read %s\n", argv[i]);
      return 2;
    }
    Words first;
    Words second;
    std::thread other([&units, &second] { decide(units, second); });
    decide(units, first);
    other.join();
    if (first != second) {
      std::fprintf(stderr, "answers: two threads differ over %s\n", argv[i]);
      return 1;
    }
    for (std::uint64_t const word : first) {
      std::printf("%llx ", static_cast<unsigned long long>(word));
    }
    std::printf("\n");
  }
  return 0;
}
