// SPDX-License-Identifier: MIT
//
// The search for code units at every place of a text that is longer than two blocks, from places
// before and behind the block searched last.
#include <vector>

#include <gtest/gtest.h>

#include "text_format_detection/model/unit_search_internal.hpp"

namespace {

TEST(UnitSearch, FindsEachUnitAtEachPosition) {
  constexpr std::size_t longest = 140;
  // NUL, nothing, units below 255, others, and more of them than are compared one by one.
  std::vector<std::u16string> sets(1, std::u16string(1, u'\0'));
  for (char16_t const* const units :
       {u"", u"\n", u"\n\u00FE", u"\n,;", u"\n,;|", u"\u00FF", u"\n\u0100", u"\n\u0100,",
        u"\n,;\u0100|", u"\n,;|\t:#\"\uFFFE"}) {
    sets.emplace_back(units);
  }
  for (std::u16string const& units : sets) {
    // What surrounds the unit looks like a line feed or an end mark in one of its bytes.
    std::u16string others = u"\u010A\u0A01\u8A0A\uFF0A\uFFFE\u00FF";
    std::erase_if(others,
                  [&](char16_t const other) { return units.find(other) != std::u16string::npos; });
    for (char16_t const unit : units + u'\uFFFF') {
      for (std::size_t pos = 0; pos < longest; ++pos) {
        std::u16string text;
        while (text.size() < longest) {
          text += others[text.size() % others.size()];
        }
        text[pos] = unit;
        SCOPED_TRACE(testing::Message() << units.size() << " units, U+" << std::hex << +unit);
        textio::model::UnitSearch search(text, units);
        ASSERT_EQ(search.find(pos / 2), pos);
        ASSERT_EQ(search.find(pos + 1), longest);
        ASSERT_EQ(search.find(0), pos);
        ASSERT_EQ(search.find(longest + 1), longest + 1);
        text.resize(pos);
        ASSERT_EQ(textio::model::UnitSearch(text, units).find(0), pos);
      }
    }
  }
}

}  // namespace
