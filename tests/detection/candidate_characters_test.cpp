// SPDX-License-Identifier: MIT
//
// Which characters may be delimiters, and which lines are asked.
#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/detection/candidate_characters_internal.hpp"

namespace {

/// The candidates of lines that hold one character each; "" is an empty line.
std::string candidates(std::vector<std::u16string_view> const& lines) {
  return support::show(textio::detection::candidate_characters(support::make_lines(lines)));
}

TEST(CandidateCharacters, Eligible) {
  std::u16string every_unit;
  for (char16_t unit = 0; unit < 0x180; ++unit) {
    every_unit += unit;
  }
  EXPECT_EQ(
      candidates({every_unit}),
      "\\u0000\\u0001\\u0002\\u0003\\u0004\\u0005\\u0006\\u0007\\u0008\\t\\u000B\\u000C\\u000E"
      "\\u000F\\u0010\\u0011\\u0012\\u0013\\u0014\\u0015\\u0016\\u0017\\u0018\\u0019\\u001B"
      "\\u001C\\u001D\\u001E\\u001F !#%&*,./:;<=>?\\^_`|~\\u007F");
  // in order of first appearance; nothing behind the end mark
  EXPECT_EQ(candidates({u"a", u"x;y,;", u"1.,|\uFFFF:", u"/"}), ";,.|/");
}

TEST(CandidateCharacters, MiddleLines) {
  EXPECT_EQ(candidates({}), "");
  EXPECT_EQ(candidates({u""}), "");
  EXPECT_EQ(candidates({u"!"}), "!");
  EXPECT_EQ(candidates({u"!", u"#"}), "#");
  EXPECT_EQ(candidates({u"!", u"#", u"%", u"&", u"*"}), "#%&*");
  EXPECT_EQ(candidates({u"!", u"#", u"%", u"&", u"*", u","}), "%&*");
  EXPECT_EQ(candidates({u"!", u"#", u"%", u"&", u"*", u",", u"."}), "&*");
  EXPECT_EQ(candidates({u"!", u"#", u"%", u"&", u"*", u",", u".", u"/", u":", u";", u"<", u"="}),
            "*,./:;");
  // empty lines are not counted
  EXPECT_EQ(candidates({u"", u"!", u"", u"#", u""}), "#");
}

}  // namespace
