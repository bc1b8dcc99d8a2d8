// SPDX-License-Identifier: MIT
//
// Where a list of strings matches in a text.
#include "text_format_detection/platform/delimiter_matcher.hpp"

#include <gtest/gtest.h>

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
  for (auto const& [strings, text, lengths, first_units] :
       support::Rows<Strings, std::u16string_view, std::string_view, std::u16string_view>{
           {{u","}, u",a,,", "10110", u","},
           {{u"\r\n", u"\n", u"\r"}, u"\r\n\n\ra", "211100", u"\r\n"},
           {{u"\r", u"\r\n"}, u"\r\n", "100", u"\r"},
           {{u"ab", u"abc", u"b"}, u"abcab", "210210", u"ab"},
           {{u"abc"}, u"ababc", "003000", u"a"},
           {{u"abc"}, u"xab", "0000", u"a"},  // does not fit in what is left
           {{u"", u"b", u""}, u"ab", "010", u"b"},
           {{u""}, u"a", "00", u""},
           {{}, u"a", "00", u""},
           // the end mark is no text
           {{u"\uFFFF"}, u"a\uFFFF", "000", u"\uFFFF"},
           {{u"a\uFFFF", u"b"}, u"a\uFFFFb", "0010", u"b"},
       }) {
    EXPECT_EQ(matches(strings, text), lengths) << support::show(text);
    EXPECT_EQ(support::show(textio::get_or_create_delim(strings)->first_units()),
              support::show(first_units));
  }
}

}  // namespace
