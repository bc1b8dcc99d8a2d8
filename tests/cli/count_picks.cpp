// SPDX-License-Identifier: MIT
//
// Loaded in front of the libraries of a program (LD_PRELOAD), counts the decisions that the program
// asks for, and writes their number to the file named by COUNT_PICKS_FILE when the program ends.
#include <atomic>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <dlfcn.h>

#include "text_format_detection/detection/strategy_selector.hpp"

namespace {

// The names that the detection library exports for the two overloads.
constexpr char const* pick = "_ZN6textio9detection16StrategySelector13pick_strategyERKNS_5FieldEm";
constexpr char const* pick_and_report =
    "_ZN6textio9detection16StrategySelector13pick_strategyERKNS_5FieldEmRNS0_15DetectionReportE";

std::atomic<int> count = 0;

/// Writes the number when the library is unloaded.
struct AtTheEnd {
  AtTheEnd() = default;
  AtTheEnd(AtTheEnd const&) = delete;
  AtTheEnd& operator=(AtTheEnd const&) = delete;

  ~AtTheEnd() {
    char const* const path = std::getenv("COUNT_PICKS_FILE");
    if (std::FILE* const file = path == nullptr ? nullptr : std::fopen(path, "w")) {
      std::fprintf(file, "%d\n", count.load());
      std::fclose(file);
    }
  }
} const at_the_end;

/// The member function that this library stands in front of; a member function is called as a
/// function that takes the object first.
template <class Function>
Function* behind(char const* const name) {
  void* const found = dlsym(RTLD_NEXT, name);
  if (found == nullptr) {
    std::fprintf(stderr, "count_picks: %s\n", dlerror());
    std::abort();
  }
  return reinterpret_cast<Function*>(found);
}

}  // namespace

namespace textio::detection {

using Strategy = std::shared_ptr<GenericStrategy>;

Strategy StrategySelector::pick_strategy(Field const& sample, std::size_t const n) {
  ++count;
  using Pick = Strategy(StrategySelector*, Field const&, std::size_t);
  return behind<Pick>(pick)(this, sample, n);
}

Strategy StrategySelector::pick_strategy(Field const& sample, std::size_t const n,
                                         DetectionReport& report) {
  ++count;
  using Pick = Strategy(StrategySelector*, Field const&, std::size_t, DetectionReport&);
  return behind<Pick>(pick_and_report)(this, sample, n, report);
}

}  // namespace textio::detection
