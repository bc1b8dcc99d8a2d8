// SPDX-License-Identifier: MIT
//
// What detection costs on the files of a folder: corpus_benchmark FOLDER [RUNS]. Every file is
// opened, decoded and decided on RUNS times (11 unless given) after once for warming up, and the
// median of its times counts. Prints one line a file: its path, the milliseconds of pick_strategy
// over the decoded text in memory, those of opening, reading, decoding and pick_strategy together,
// apart by tabs; a file that cannot be opened has "error" in place of both. tools/bench and
// tools/compare make tables of it.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"

namespace {

constexpr std::size_t records = 250;

/// Returns the number of fields, so that nothing is left out.
std::size_t pick(textio::Field const& sample) {
  static textio::parser::options const options;
  static ostrel::io::text::typedetection::TypeAnalyzerOptions const type_options;
  textio::detection::StrategySelector selector(options, type_options);
  return selector.pick_strategy(sample, records)->field_array()->fields().size();
}

/// The median time of `runs` calls after one more, in milliseconds.
template <class Work>
double median_time(std::size_t const runs, Work work) {
  using Clock = std::chrono::steady_clock;
  work();
  std::vector<double> times;
  for (std::size_t i = 0; i < runs; ++i) {
    auto const start = Clock::now();
    work();
    times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

void measure(std::string const& path, std::size_t const runs) {
  try {
    auto const text = textimport::TextSource::open(path);
    double const in_memory = median_time(runs, [&] { return pick(text.sample()); });
    double const from_file =
        median_time(runs, [&] { return pick(textimport::TextSource::open(path).sample()); });
    std::printf("%s\t%.6f\t%.6f\n", path.c_str(), in_memory, from_file);
  } catch (textimport::ImportError const&) {
    std::printf("%s\terror\terror\n", path.c_str());
  }
}

std::vector<std::string> files_below(char const* const folder) {
  std::vector<std::string> files;
  for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      files.push_back(entry.path().string());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int main(int const argc, char const* const* const argv) {
  std::string_view const runs_text = argc > 2 ? argv[2] : "11";
  std::size_t runs = 0;
  std::from_chars(runs_text.data(), runs_text.data() + runs_text.size(), runs);
  if (argc < 2 || argc > 3 || runs == 0) {
    std::fputs("usage: corpus_benchmark FOLDER [RUNS]\n", stderr);
    return 2;
  }
  try {
    for (std::string const& path : files_below(argv[1])) {
      measure(path, runs);
    }
  } catch (std::filesystem::filesystem_error const& error) {
    std::fprintf(stderr, "corpus_benchmark: %s\n", error.what());
    return 2;
  }
  return 0;
}
