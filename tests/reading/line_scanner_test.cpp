// SPDX-License-Identifier: MIT
//
// Lines as single fields.
#include <gtest/gtest.h>

#include "tests/support/reading.hpp"
#include "text_format_detection/reading/line_scanner_internal.hpp"

namespace {

using support::expect_readings;
using support::How;
using Empty = textio::enums::EmptyLineRule;

TEST(LineScanner, Lines) {
  How how{{.delimiters = {u","}}, textio::enums::StrategyMode::LineReader};
  expect_readings(how, {{u"hello\r\na,b\rc", "hello / a,b / c"},
                        {u" a \t\n\"b\nc\"", " a \\t / \"b / c\""},
                        {u"\n \na\n", "a"},
                        {u"a\uFFFFb\nc", "a"},
                        {u"\uFFFF", ""}});
  how.options.empty_lines = Empty::Read;
  expect_readings(how, {{u"\n  \na\n", "() / () / a / ()"}, {u"a", "a"}, {u"a\n\uFFFF", "a / ()"}});
  how.options.empty_lines = Empty::Error;
  expect_readings(how, {{u"a\nb\n\t\nc", "a / b !empty_line_rule 2,0,"}});
  how.options.line_endings = {u"||", u"|"};
  expect_readings(how, {{u"a|b||c\n", "a / b / c\\n"}});
  how.options.line_endings = {};
  expect_readings(how, {{u"a\nb", "a\\nb"}});
  how.max_fields = 0;
  expect_readings(how, {{u"a", "()"}});
}

}  // namespace
