// SPDX-License-Identifier: MIT
//
// Comments in front of records: where they are recognised, the lines that they fill, and the data
// behind them. In a sample every line of a comment leaves an empty record.
#include <gtest/gtest.h>

#include "tests/support/reading.hpp"

namespace {

using support::expect_readings;
using support::How;
using textio::enums::StrategyMode;
using Empty = textio::enums::EmptyLineRule;
using Leading = textio::enums::LeadingDelimitersRule;

/// Reads a sample with these comment markers.
How sampling(std::vector<std::u16string> const& markers) {
  return {{.delimiters = {u","}, .comment_style = markers}, {}, support::read_a_sample};
}

TEST(Comments, ToTheEndOfTheLine) {
  expect_readings(sampling({u"#"}), {{u"#x\na,b\n", "() / a|b"},
                                     {u" \t#x,y\r\na", "() / a"},
                                     {u"a\n#x", "a / ()"},
                                     {u"a#b,#c\n", "a#b|#c"},
                                     {u"#x\uFFFFa", "()"},
                                     {u"#\n\n#\na", "() / () / a"},
                                     {u",#x\na", "|#x / a"}});
  expect_readings({sampling({u"#"}).options}, {{u"#x\na\n#y\n", "a"}});
  expect_readings(sampling({u"//"}), {{u"/a\n//b", "/a / ()"}});
  // of more than two markers only the first counts; an empty one matches nowhere
  expect_readings(sampling({u"#", u"%", u"!"}), {{u"#x\n%a\n!b", "() / %a / !b"}});
  expect_readings(sampling({u""}), {{u"#x", "#x"}});
  expect_readings(sampling({u"\uFFFF"}), {{u"a\n\uFFFF\nb", "a"}});
}

TEST(Comments, BetweenTwoMarkers) {
  expect_readings(sampling({u"/*", u"*/"}), {{u"/*x*/a,b\nc", "a|b / c"},
                                             {u"/*x*/ \t a", "a"},
                                             {u"/*x*/  \na", "() / a"},
                                             {u"/*x\ny*/a\nb", "() / a / b"},
                                             {u"/*x\r\ny*/\nb", "() / () / b"},
                                             {u"/*x*//*y*/a", "/*y*/a"},
                                             {u"/*/a\n*/b", "() / b"},
                                             {u"/*x\n\ny", "() / () / ()"},
                                             {u"/*x\n", "() / ()"},
                                             {u"/*x\n\uFFFF*/a", "() / ()"},
                                             {u"a /*x*/,b", "a /*x*/|b"}});
  expect_readings(sampling({u"/*", u""}), {{u"/*x\na", "() / ()"}});
  // a line ending that is part of the closing marker lies inside, one that only begins in it not
  expect_readings(sampling({u"<", u">\n"}), {{u"<x\n>\na", "() / () / a"}});
  expect_readings(sampling({u"<", u">\r"}), {{u"<x>\r\na", "() / a"}});
}

TEST(Comments, DelimitersInFrontOfThem) {
  How how = sampling({u"/*", u"*/"});
  how.options.leading_delimiters_rule = Leading::Ignore;
  expect_readings(how, {{u" ,,/*x*/,,a,b", "a|b"}, {u",/*x*/ ,\na", "() / a"}});
}

TEST(Comments, LineEndingsAmongTheWhitespace) {
  How how = sampling({u"#"});
  how.options.whitespace = u" \n";
  how.options.empty_lines = Empty::Read;
  expect_readings(
      how, {{u"\n\n#x\na", "a"}, {u"\n\na\n\n#x\nb\n", "() / () / a / b"}, {u"\n\n", "() / ()"}});
}

TEST(Comments, LineLimit) {
  auto const all = textio::unknown_count;
  How how = sampling({u"/*", u"*/"});
  how.limits = {all, 1, false};
  // reached by a record, exceeded by a comment
  expect_readings(how, {{u"/**/\na\nb", "a"}, {u"/*\n*/\na", ""}, {u"/*\n*/a\nb", "a"}});
  how.limits = {1, all, false};
  expect_readings(how, {{u"/*\n*/\na\n/**/\nb", "a"}});
}

TEST(Comments, OfLinesAndColumns) {
  for (StrategyMode const mode : {StrategyMode::FixedWidth, StrategyMode::LineReader}) {
    How how = sampling({u"/*", u"*/"});
    how.mode = mode;
    how.options.leading_delimiters_rule = Leading::Ignore;  // there are none to be ignored
    expect_readings(how, {{u" /*x\n*/ ,a\n/*y*/\n b", "() / ,a / () /  b"}});
  }
}

}  // namespace
