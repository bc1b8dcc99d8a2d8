// SPDX-License-Identifier: MIT
//
// The search for code units at every place of a text that is longer than any vector.
#include <gtest/gtest.h>

#include "text_format_detection/model/unit_search_internal.hpp"

namespace {

TEST(UnitSearch, FindsEachUnitAtEachPosition) {
  constexpr std::size_t longest = 70;
  std::u16string const all = u"\n,\uFFFE;\u0100|\t:#\"";
  for (std::size_t size = 0; size <= all.size(); ++size) {
    std::u16string const units = all.substr(0, size);
    textio::model::UnitSearch const search(units);
    for (char16_t const unit : units + u'\uFFFF') {
      for (std::size_t pos = 0; pos < longest; ++pos) {
        std::u16string text(longest, u'\u010A');
        text[pos] = unit;
        SCOPED_TRACE(testing::Message() << size << " units, U+" << std::hex << +unit);
        ASSERT_EQ(search.find(text, 0), pos);
        ASSERT_EQ(search.find(text, pos / 2), pos);
        ASSERT_EQ(search.find(text, pos + 1), longest);
        ASSERT_EQ(search.find(std::u16string_view(text).substr(0, pos), 0), pos);
      }
    }
  }
}

}  // namespace
