// SPDX-License-Identifier: MIT
//
// Times every operation of the program over every shape and length. Each row runs its operation and
// its reference in turn, so that what disturbs the machine disturbs both; the ratio of the two
// medians is the figure to look at.
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmarks/operation.hpp"
#include "benchmarks/plain_pass.hpp"

namespace textio::benchmarks {

namespace {

constexpr std::size_t fewest_runs = 5;

/// Runs some work in batches that are long enough for the clock, and keeps the time of each batch.
class Stopwatch {
 public:
  explicit Stopwatch(Work work) : work_(std::move(work)) {
    constexpr double shortest_batch = 20e-6;
    double const once = std::max(time(1), 1e-9);
    batch_ = once < shortest_batch ? static_cast<std::size_t>(shortest_batch / once) + 1 : 1;
  }

  /// Runs one batch and returns its time in seconds.
  double run() {
    double const seconds = time(batch_);
    per_call_.push_back(seconds / static_cast<double>(batch_));
    return seconds;
  }

  [[nodiscard]] std::size_t batch() const { return batch_; }

  [[nodiscard]] std::size_t num_runs() const { return per_call_.size(); }

  /// The median time of one call, in seconds.
  [[nodiscard]] double median() {
    auto const middle = per_call_.begin() + static_cast<std::ptrdiff_t>(per_call_.size() / 2);
    std::nth_element(per_call_.begin(), middle, per_call_.end());
    return *middle;
  }

 private:
  using Clock = std::chrono::steady_clock;

  [[nodiscard]] double time(std::size_t const calls) const {
    auto const start = Clock::now();
    for (std::size_t i = 0; i < calls; ++i) {
      benchmark::DoNotOptimize(work_());
    }
    return std::chrono::duration<double>(Clock::now() - start).count();
  }

  Work work_;
  std::size_t batch_ = 1;
  std::vector<double> per_call_;
};

/// The text of a shape; the last one is kept, because rows over the same text follow each other.
std::u16string_view text_of(Shape const& shape, std::size_t const length) {
  static std::string_view kept_shape;
  static std::u16string kept;
  if (kept_shape != shape.name || kept.size() != length) {
    kept = shape.make(length);
    kept_shape = shape.name;
  }
  return kept;
}

void measure(benchmark::State& state, Operation const& operation, Shape const& shape,
             std::size_t const length) {
  std::u16string_view const text = text_of(shape, length);
  Stopwatch measured(operation.prepare(shape, text));
  Stopwatch reference(operation.reference ? operation.reference(shape, text)
                                          : [text] { return plain_pass(text); });
  while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(measured.batch()))) {
    state.SetIterationTime(measured.run());
    reference.run();
  }
  // A slow row would be left at a single run, which is no median.
  while (measured.num_runs() < fewest_runs) {
    measured.run();
    reference.run();
  }
  double const median = measured.median();
  state.SetLabel(std::string(operation.reference_name));
  state.counters["median_ms"] = 1e3 * median;
  state.counters["units_per_second"] = static_cast<double>(length) / median;
  state.counters["ratio"] = median / reference.median();
  state.counters["extra_ms"] = 1e3 * (median - reference.median());
}

std::string length_name(std::size_t const length) {
  constexpr std::size_t mebi = std::size_t{1} << 20U;
  return length < mebi ? std::to_string(length / 1024) + "Ki"
                       : std::to_string(length / mebi) + "Mi";
}

void register_all() {
  for (std::size_t const length : lengths()) {
    for (Shape const& shape : shapes()) {
      for (Operation const& operation : operations()) {
        if (operation.runs_over(shape)) {
          std::string const name =
              operation.name + '/' + std::string(shape.name) + '/' + length_name(length);
          benchmark::RegisterBenchmark(name.c_str(), measure, operation, shape, length)
              ->UseManualTime()
              ->Unit(benchmark::kMillisecond);
        }
      }
    }
  }
}

}  // namespace

}  // namespace textio::benchmarks

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 2;
  }
  textio::benchmarks::register_all();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
