// SPDX-License-Identifier: MIT
//
// Samples of every length, with a page behind their end or in front of their start that must not be
// touched. TRUST_LENGTHS=all looks at every length, else at every 37th.
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "tests/support/decision.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using textio::Field;

constexpr std::size_t longest = 9000;

/// Room between two protected pages.
class GuardedRoom {
 public:
  GuardedRoom() {
    auto const page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    size_ = (longest * sizeof(char16_t) / page + 1) * page;
    char* const all = static_cast<char*>(::mmap(nullptr, size_ + 2 * page, PROT_NONE,  // NOLINT
                                                MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    room_ = all + page;
    if (::mprotect(room_, size_, PROT_READ | PROT_WRITE) != 0) {
      std::abort();
    }
  }

  Field at_start(std::u16string_view const text) { return place(text, room_); }

  Field at_end(std::u16string_view const text) {
    return place(text, room_ + size_ - text.size() * sizeof(char16_t));
  }

 private:
  static Field place(std::u16string_view const text, char* const bytes) {
    auto* const units = reinterpret_cast<char16_t*>(bytes);
    text.copy(units, text.size());
    return {units, text.size()};
  }

  char* room_ = nullptr;  // stays until the program ends
  std::size_t size_ = 0;
};

std::string decide(Field const& sample) {
  textio::parser::options const options;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;
  textio::detection::StrategySelector selector(options, types);
  auto const strategy = selector.pick_strategy(sample, textio::unknown_count);
  return support::show_layout(*strategy) + " " +
         std::to_string(strategy->field_array()->num_records());
}

TEST(Pages, NothingOutsideASampleIsTouched) {
  char const* const lengths = std::getenv("TRUST_LENGTHS");
  std::size_t const step = lengths != nullptr && std::string_view(lengths) == "all" ? 1 : 37;
  GuardedRoom front;
  GuardedRoom back;
  std::size_t count = 0;
  for (std::u16string_view const unit :
       {u"1,\"a \"\"b\"\", c\",2024-01-05\r\n", u"  12   abc   3.5\n", u"a\tb\t\"\n", u"\r",
        u"one long line; with some words | "}) {
    std::u16string text;
    while (text.size() < longest) {
      text += unit;
    }
    for (std::size_t length = 0; length <= longest; length += step) {
      Field const sample(std::u16string_view(text).substr(0, length));
      std::string const decision = decide(front.at_start(sample.view()));
      ASSERT_EQ(decision, decide(back.at_end(sample.view()))) << length;
      count += 2;
    }
  }
  std::printf("figure: %zu samples between protected pages\n", count);
}

}  // namespace
