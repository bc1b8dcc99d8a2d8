// SPDX-License-Identifier: MIT
//
// Where a list of strings matches in a text.
#include "text_format_detection/platform/delimiter_matcher.hpp"

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"

namespace {

using Strings = std::vector<std::u16string>;

/// The length of the match at every position of the text, and at the one behind it.
std::string matches(Strings const& strings, std::u16string_view const text) {
  auto const matcher = textio::get_or_create_delim(strings);
  std::string lengths;
  for (std::size_t pos = 0; pos <= text.size(); ++pos) {
    lengths += std::to_string(matcher->length_at(text, pos));
  }
  return lengths;
}

TEST(DelimiterMatcher, Matches) {
  support::for_each_row("platform/delimiter_matcher.tsv", [](support::Row const& row) {
    auto const strings = support::value_of<Strings>(row.value(0));
    EXPECT_EQ(matches(strings, row.text(1)), row.cells.at(2));
    EXPECT_EQ(support::show(textio::get_or_create_delim(strings)->first_units()), row.cells.at(3));
  });
}

}  // namespace
