// SPDX-License-Identifier: MIT
//
// Fixed-width records: columns, lines that end inside one, and what stands behind the last one.
#include <gtest/gtest.h>

#include "tests/support/reading.hpp"
#include "text_format_detection/reading/fixed_width_scanner_internal.hpp"

namespace {

using support::expect_readings;
using support::How;
using textio::enums::StrategyMode;
using Empty = textio::enums::EmptyLineRule;
using Partial = textio::enums::PartialFieldRule;

How with_widths(std::vector<std::size_t> const& widths, Partial const rule = Partial::Keep) {
  return {{.column_widths = widths, .partial_field_rule = rule}, StrategyMode::FixedWidth};
}

TEST(FixedWidthScanner, Columns) {
  expect_readings(with_widths({3, 3}), {{u"abcdef\nghi\n", "abc|def / ghi"},
                                        {u"abcdef\r\na,\" b\n", "abc|def / a,\"| b"},
                                        {u"abcd", "abc|d"},
                                        {u"abc", "abc"},
                                        {u"ab\r\nabc\rx", "ab / abc / x"},
                                        {u"abcd\uFFFFef\n", "abc|d"},
                                        {u"abc\uFFFFdef", "abc"},
                                        {u" \n   abc\n", "   |abc"}});
  expect_readings(with_widths({0, 2}), {{u"ab\n", "|ab"}});
  expect_readings(with_widths({textio::unknown_count}), {{u"ab\nc", "ab / c"}});
}

TEST(FixedWidthScanner, RestOfTheLine) {
  expect_readings(with_widths({2}), {{u"abcdef\ng", "ab|cdef / g"},
                                     {u"ab \t \nc", "ab / c"},
                                     {u"ab  c\n", "ab|  c"},
                                     {u"abcd\uFFFF\n", "ab|cd"}});
  expect_readings(with_widths({}), {{u"a b\n  \nc", "a b / c"}});
  How how = with_widths({2});
  how.options.line_endings = {u"||"};
  expect_readings(how, {{u"abc|d||e|||f", "ab|c|d / e / |f"}});
  how.max_fields = 1;
  expect_readings(how, {{u"abc|d||e", "ab / e"}});
}

TEST(FixedWidthScanner, LineEndsInsideAColumn) {
  std::u16string_view const text = u"abcd\n\ng";
  for (auto const& [rule, expected] : {
           support::Row{u"0", "abc|d / g"},
           // stored and counted even where nothing is left of the record
           {u"1", "abc / () / g"},
           {u"2", "abc / () / g"},
           {u"3", "abc / () / g"},
           {u"4", "abc|d\\n\\n|g"},
           {u"5", "!partial_field_error 0,1,\\n"},
           {u"6", "abc|d\\n\\n|g"},
           {u"9", "abc|d\\n\\n|g"},
       }) {
    auto const value = static_cast<Partial>(rule.front() - u'0');
    EXPECT_EQ(support::read(with_widths({3, 3}, value), text), expected)
        << "rule " << rule.front() - u'0';
  }
  expect_readings(with_widths({3, 3}, Partial::Error),
                  {{u"abcdef\nabc\nghij\n", "abc|def / abc !partial_field_error 2,1,\\n"}});
  expect_readings(with_widths({1, 1, 1}, Partial::Wrap), {{u"a\nbc\n", "a / b|c"}});
}

TEST(FixedWidthScanner, EmptyLines) {
  How how = with_widths({2, 2});
  how.options.empty_lines = Empty::Read;
  // nothing is added behind the last line
  expect_readings(how, {{u"\nabcd\n  \n", "() / ab|cd / ()"}});
  how.options.empty_lines = Empty::Error;
  expect_readings(how, {{u"ab\nabc\n   \n", "ab / ab|c !empty_line_rule 2,0,"}});
  how.options.partial_field_rule = Partial::DropRecord;
  expect_readings(how, {{u"a\nab\n", "() / ab"}});
}

}  // namespace
