// SPDX-License-Identifier: MIT
//
// The characters that a decision left aside, and what it says of each.
#include "text_format_detection/detection/untried_characters.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"

namespace {

using textio::detection::DetectionReport;
using textio::detection::NotTried;

/// What is said of the sample's characters, by an outside reader of at most `records` of them.
DetectionReport decide(std::u16string_view const text, textio::parser::options const& how,
                       std::size_t const records) {
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;
  textio::detection::StrategySelector selector(how, types);
  DetectionReport report;
  selector.pick_strategy(textio::Field(text), records, report);
  return report;
}

/// The character as text.
std::string show(char32_t const character) {
  if (character < 0x10000) {
    return support::show(std::u16string{static_cast<char16_t>(character)});
  }
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "U+%X", static_cast<unsigned>(character));
  return digits.data();
}

/// The characters with their reasons, apart by blanks.
std::string show_untried(std::u16string_view const text, DetectionReport const& report) {
  constexpr std::array names{"decimal", "thousands", "never", "not-ascii", "outside"};
  std::string shown;
  for (auto const& [character, why] : textio::detection::untried_characters(text, report)) {
    shown += (shown.empty() ? "" : " ") + show(character) + ":" +
             names.at(static_cast<std::size_t>(why));
  }
  return shown;
}

TEST(UntriedCharacters, AreToldWithTheirReasons) {
  support::for_each_row("detection/untried_characters.tsv", [](support::Row const& row) {
    auto const how = support::record_of<textio::parser::options>(row.with);
    auto const text = row.text(0);
    EXPECT_EQ(show_untried(text, decide(text, how, textio::unknown_count)), row.cells.at(1));
  });
}

TEST(UntriedCharacters, AreThoseOfTheWholeSample) {
  std::u16string const text = u"a,b\nc,d\ne;f\n";
  EXPECT_EQ(show_untried(text, decide(text, {}, 2)), ";:outside");
}

TEST(UntriedCharacters, MayBeHalfOfOne) {
  std::u16string const text{0xDE00, ',', 0xD83D, '\n', 'a', 0xD83D, 0xD83D, 0xDE00, ',', 0xD801};
  EXPECT_EQ(show_untried(text, decide(text, {}, 2)),
            "\\uD801:not-ascii \\uD83D:not-ascii \\uDE00:not-ascii U+1F600:not-ascii");
}

TEST(UntriedCharacters, AreToldOnceEach) {
  std::u16string text;
  for (char32_t unit = 0; unit <= 0xFFFE; ++unit) {
    text += static_cast<char16_t>(unit);
  }
  text += {0xDC00, 0xDBFF, u'x'};  // those two made a pair, in the middle of the surrogates
  for (char16_t lead = 0xD800; lead < 0xDC00; ++lead) {
    for (char16_t trail = 0xDC00; trail < 0xE000; ++trail) {
      text += {lead, trail};
    }
  }
  auto const untried = textio::detection::untried_characters(text, decide(text, {}, 1));
  EXPECT_TRUE(std::ranges::is_sorted(untried, std::ranges::less_equal(),
                                     &textio::detection::UntriedCharacter::character));
  auto const is_beyond = [](auto const& entry) { return entry.character >= 0x80; };
  EXPECT_EQ(std::ranges::count_if(untried, is_beyond), 0x10FFFF - 0x80);
}

}  // namespace
