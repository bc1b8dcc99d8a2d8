// SPDX-License-Identifier: MIT
//
// What a decision does to the heap: every allocation may fail, none leaks, and the peak is bounded.
#include "tests/trust/heap.hpp"

#include <algorithm>
#include <filesystem>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "benchmarks/hostile_texts.hpp"
#include "tests/support/decision.hpp"
#include "tests/support/text.hpp"
#include "tests/text_import/made_data.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using textimport::TextSource;
using textio::Field;
using textio::detection::DetectionReport;
using textio::detection::StrategySelector;
using trust::heap;
namespace fs = std::filesystem;

/// The files in a folder of the sources, expectations excepted.
std::vector<std::string> files_in(char const* const folder) {
  std::vector<std::string> paths;
  for (auto const& entry : fs::directory_iterator(fs::path(TFD_SOURCES) / folder)) {
    if (entry.path().extension() != ".expect") {
      paths.push_back(entry.path().string());
    }
  }
  EXPECT_GT(paths.size(), 10U) << folder;
  return paths;
}

/// Fails the first allocation of `action`, then the second and so on until none is left to fail;
/// each one once, and then with all that follow. Returns the number of allocations.
template <class Action>
std::size_t fail_each_allocation(Action const& action) {
  std::size_t call = 0;
  for (bool const for_good : {false, true}) {
    bool done = false;
    for (call = 1; !done; ++call) {
      std::size_t const live_before = heap.live_bytes;
      heap.fails_for_good = for_good;
      heap.fails_at = heap.calls + call;
      bool caught = false;
      try {
        action();
      } catch (std::bad_alloc const&) {
        caught = true;
      }
      done = heap.calls < heap.fails_at;
      heap.fails_at = 0;
      EXPECT_NE(done, caught) << "no bad_alloc from allocation " << call;
      EXPECT_EQ(heap.live_bytes, live_before) << "a leak after allocation " << call;
    }
  }
  return call - 2;
}

TEST(Allocations, MayFailInEveryDecision) {
  std::size_t count = 0;
  for (char const* const folder : {"tests/samples", "examples/data"}) {
    for (std::string const& path : files_in(folder)) {
      SCOPED_TRACE(path);
      TextSource const source = TextSource::open(path);
      textio::parser::options options;
      options.delimiters = {u"a delimiter too long to be kept in place"};
      TypeAnalyzerOptions const types;
      StrategySelector selector(options, types);
      DetectionReport report;
      report.reason = textio::detection::Reason::NoneLeft;
      count += fail_each_allocation([&] {
        DetectionReport notes = report;
        try {
          selector.pick_strategy(source.sample(), 25, notes);
        } catch (...) {
          EXPECT_EQ(notes.reason, textio::detection::Reason::NoneLeft);
          EXPECT_EQ(notes.line_reader, nullptr);
          throw;
        }
      });
      EXPECT_EQ(selector.delimiters(), options.delimiters);
      EXPECT_EQ(options.delimiters.at(0), u"a delimiter too long to be kept in place");
    }
  }
  std::printf("figure: %zu allocations of decisions failed, once and for good\n", count);
}

TEST(Allocations, MayFailWhileAWrongFormatIsExplained) {
  textio::parser::options const options;
  TypeAnalyzerOptions types;
  types.datetime_format = u"qqq";
  StrategySelector selector(options, types);
  fail_each_allocation([&] { selector.pick_strategy(Field(u"a,b\n1/2,3/4\n"), 25); });
}

TEST(Allocations, MayFailWhenATextIsOpened) {
  std::string const table = textimport::made::table_of(3000);
  // Nothing that takes statistics to decode: the library asked for them leaks when it runs out.
  std::vector<std::string> forms{table, "", "\xFE\xFF\0a", "caf\xC3\xA9;1", "%PDF-1.4"};
  for (char const* const format : textimport::made::packed_formats) {
    forms.push_back(textimport::made::packed(format, table));
    forms.push_back(forms.back().substr(0, forms.back().size() / 2));
  }
  std::size_t count = 0;
  for (std::string const& bytes : forms) {
    SCOPED_TRACE(bytes.substr(0, 10));
    std::string const name = "a name too long to be kept in place";
    count += fail_each_allocation([&] {
      try {
        auto source = TextSource::open(textimport::memory_bytes(bytes), name);
        source.stream().refill();
      } catch (textimport::ImportError const&) {
        // what is wrong with the bytes
      }
    });
  }
  std::printf("figure: %zu allocations of opening texts failed, once and for good\n", count);
}

/// The answer about a strategy whose sampling and scoring failed once, at any allocation, is that
/// about one that never failed.
template <class MakeStrategy>
std::size_t expect_same_answer_after_a_failure(Field const& sample, MakeStrategy const& make) {
  auto const sound = make();
  textio::evaluate_strategy(sound, sample, textio::unknown_count);
  std::string const expected = support::show_decision(*sound, {});
  std::shared_ptr<textio::GenericStrategy> strategy;
  return fail_each_allocation([&] {
    strategy.reset();
    strategy = make();
    try {
      textio::evaluate_strategy(strategy, sample, textio::unknown_count);
    } catch (std::bad_alloc const&) {
      std::size_t const fails_at = std::exchange(heap.fails_at, 0);
      textio::evaluate_strategy(strategy, sample, textio::unknown_count);
      EXPECT_EQ(support::show_decision(*strategy, {}), expected);
      EXPECT_TRUE(support::same_score(strategy->valuation(), sound->valuation()));
      strategy.reset();
      heap.fails_at = fails_at;
      throw;
    }
    strategy.reset();
  });
}

TEST(Allocations, MayFailBeforeAStrategyIsScored) {
  std::vector<std::u16string> texts{u"A title\n\n\na,b,c\n1,2,3\n4,5,6\n", u"x\ny\nz\n", u""};
  for (std::string const& path : files_in("tests/samples")) {
    texts.emplace_back(TextSource::open(path).sample().view());
  }
  textio::parser::options const options;
  TypeAnalyzerOptions const types;
  std::size_t count = 0;
  for (std::u16string const& text : texts) {
    SCOPED_TRACE(support::show(text));
    count += expect_same_answer_after_a_failure(Field(text), [&] {
      return std::make_shared<textio::DelimitedStrategy>(options, types, u',');
    });
    count += expect_same_answer_after_a_failure(Field(text), [&] {
      return std::make_shared<textio::SpaceAlignedStrategy>(options, types);
    });
  }
  std::printf("figure: %zu allocations of single strategies failed, once and for good\n", count);
}

constexpr std::size_t unit_bytes = sizeof(char16_t);

/// The most bytes that one decision holds.
std::size_t peak_of(Field const& sample, textio::parser::options const& options,
                    std::size_t const n) {
  TypeAnalyzerOptions const types;
  StrategySelector selector(options, types);
  std::size_t const before = heap.live_bytes;
  heap.peak_bytes = before;
  selector.pick_strategy(sample, n);
  return heap.peak_bytes - before;
}

/// The larger of `worst` and the peak as a multiple of the sample's bytes.
double worst_of(double const worst, std::size_t const peak, std::size_t const length) {
  return std::max(worst, static_cast<double>(peak) / static_cast<double>(unit_bytes * length));
}

TEST(Memory, IsBoundedOnHostileTexts) {
  double worst = 0;
  for (auto const& family : textio::benchmarks::hostile_families()) {
    for (std::size_t const length : {std::size_t{1} << 16, std::size_t{1} << 18}) {
      std::u16string const text = family.make(length);
      std::size_t const peak = peak_of(Field(text), family.options, textio::unknown_count);
      EXPECT_LE(peak, 64 * length * unit_bytes) << family.name;
      worst = worst_of(worst, peak, length);
    }
  }
  std::printf("figure: peak memory of hostile texts %.1f times the sample\n", worst);
}

// Candidates keep records of about a kilobyte whatever the sample's size; hence the second term.
TEST(Memory, IsBoundedOnExamples) {
  double worst_short = 0;
  double worst_long = 0;
  for (std::string const& path : files_in("examples/data")) {
    SCOPED_TRACE(path);
    TextSource const source = TextSource::open(path);
    std::u16string text(source.sample().view());
    if (text.empty()) {
      continue;
    }
    std::size_t const peak = peak_of(source.sample(), {}, 250);
    EXPECT_LE(peak, 8 * text.size() * unit_bytes + 24 * 1024);
    worst_short = worst_of(worst_short, peak, text.size());
    while (text.size() < 1 << 16) {
      text += source.sample().view();
    }
    std::size_t const peak_of_long = peak_of(Field(text), {}, 250);
    EXPECT_LE(peak_of_long, 8 * text.size() * unit_bytes);
    worst_long = worst_of(worst_long, peak_of_long, text.size());
  }
  std::printf("figure: peak memory of examples %.1f times the sample, %.1f repeated to 128 KiB\n",
              worst_short, worst_long);
}

}  // namespace
