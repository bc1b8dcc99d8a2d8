// SPDX-License-Identifier: MIT
//
// Delimited records: what each rule makes of a text.
#include <gtest/gtest.h>

#include "tests/support/reading.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/reading/delimited_scanner_internal.hpp"

namespace {

using support::expect_readings;
using support::How;
using textio::parser::options;
using Consecutive = textio::enums::ConsecutiveDelimitersRule;
using Empty = textio::enums::EmptyLineRule;
using Leading = textio::enums::LeadingDelimitersRule;
using Trailing = textio::enums::TrailingDelimitersRule;

std::vector<std::u16string> const commas = {u","};

TEST(DelimitedScanner, ConsecutiveDelimiters) {
  expect_readings({{.delimiters = commas}},
                  {{u"a,,b\nc", "a||b / c"}, {u",,a", "||a"}, {u",", "|"}, {u",,\n", "||"}});
  expect_readings(
      {{.delimiters = commas, .consecutive_delimiters_rule = Consecutive::Join}},
      {{u"a,,b\nc,d", "a|b / c|d"}, {u",,a", "|a"}, {u"a,,,\nb", "a| / b"}, {u"a", "a"}});
  expect_readings({{.delimiters = commas, .consecutive_delimiters_rule = Consecutive::Error}},
                  {{u"a,b,c\n,d", "a|b|c / |d"},
                   {u"a,", "a|"},
                   {u"a,b\na,,b", "a|b !consecutive_delimiters_error 0,0,"},
                   {u",,a", "!consecutive_delimiters_error 0,0,"},
                   {u"a,,", "!consecutive_delimiters_error 0,0,"}});
  // a run may turn out to be trailing
  expect_readings({{.delimiters = commas,
                    .consecutive_delimiters_rule = Consecutive::Error,
                    .empty_lines = Empty::Read,
                    .trailing_delimiters_rule = Trailing::Ignore}},
                  {{u"a,,", "a"},
                   {u"a,b,,,\nc,", "a|b / c"},
                   {u",,", "()"},
                   {u"a\na,,b", "a !consecutive_delimiters_error 0,0,"},
                   {u"a,,b,,", "!consecutive_delimiters_error 0,0,"},
                   {u"a,b,,c,,,d", "!consecutive_delimiters_error 0,0,"},
                   {u",,a", "!consecutive_delimiters_error 0,0,"}});
}

TEST(DelimitedScanner, LeadingDelimiters) {
  expect_readings({{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}},
                  {{u",,a\n,b,c", "a / b|c"}, {u" ,a", " |a"}, {u",\nb", "b"}, {u",,", ""}});
  expect_readings({{.delimiters = commas, .leading_delimiters_rule = Leading::Error}},
                  {{u"a,b", "a|b"}, {u"a\n,b", "a !leading_delimiters_error 0,0,"}});
  // the record holds more than blanks, its only field does not
  expect_readings({{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}},
                  {{u",  \na\n", "() / a"}});
}

TEST(DelimitedScanner, TrailingDelimiters) {
  expect_readings({{.delimiters = commas}}, {{u"a,b,\n", "a|b|"}, {u"a,b,,", "a|b||"}});
  expect_readings({{.delimiters = commas, .trailing_delimiters_rule = Trailing::Ignore}},
                  {{u"a,b,\nc", "a|b / c"}, {u"a,,,", "a"}, {u"a,,b,,", "a||b"}, {u",,", ""}});
  expect_readings({{.delimiters = commas, .trailing_delimiters_rule = Trailing::Error}},
                  {{u"a,,b\n,b", "a||b / |b"},
                   {u"a\nb,", "a !trailing_delimiters_error 0,0,"},
                   {u",", "!trailing_delimiters_error 0,0,"}});
}

TEST(DelimitedScanner, QuotedField) {
  expect_readings({{.delimiters = commas}},
                  {{u"\"a,b\",c", "\"a,b\"|c"},
                   {u"a,\"b\nc\",d\ne", "a|\"b\\nc\"|d / e"},
                   {u"\"a\"\",\"\"b\",c", "\"a\"\",\"\"b\"|c"},
                   {u"\"\",a", "\"\"|a"},
                   {u"\"a\"x,b", "\"a\"x|b"},
                   {u"a\"b,c\"\nd", "a\"b|c\" / d"},
                   // never closed: to the end of the text, but not past the end mark
                   {u"\"a,b\nc,d\n", "\"a,b\\nc,d\\n"},
                   {u"\"a\"\",b\nc", "\"a\"\",b\\nc"},
                   {u"\"a\uFFFF\",b", "\"a"},
                   {u"\"a\"\uFFFF,b", "\"a\""},
                   {u"\"", "\""}});
  expect_readings({{.delimiters = commas, .quote_characters = u"'\""}},
                  {{u"'a,b',\"c,d\"", "'a,b'|\"c|d\""}});
  expect_readings({{.delimiters = commas, .quote_characters = u""}},
                  {{u"\"a,b\",\uFFFF,c", "\"a|b\"|"}});
}

TEST(DelimitedScanner, DelimitersOfSeveralUnits) {
  expect_readings({{.delimiters = {u"::", u":"}}}, {{u"a::b:c:::d", "a|b|c||d"}});
  expect_readings({{.delimiters = {u":", u"::"}}}, {{u"a::b", "a||b"}});
  expect_readings({{.delimiters = {u"", u"::"}}}, {{u"a:b::c:", "a:b|c:"}});
  expect_readings({{.delimiters = {u"::"}, .leading_delimiters_rule = Leading::Ignore}},
                  {{u"::::a::b", "a|b"}, {u":a", ":a"}});
  expect_readings({{.delimiters = {}}}, {{u"a,b\nc", "a,b / c"}});
}

TEST(DelimitedScanner, LineEndings) {
  expect_readings({{.delimiters = commas}}, {{u"a,b\r\nc\rd\n\re", "a|b / c / d / e"}});
  expect_readings({{.delimiters = commas, .line_endings = {u"\n"}}},
                  {{u"a\r\nb\uFFFF\nc", "a\\r / b"}});
  expect_readings({{.delimiters = commas, .line_endings = {u"||"}}}, {{u"a|b||c\n", "a|b / c\\n"}});
  expect_readings({{.delimiters = commas, .line_endings = {}}}, {{u"a\nb,c\n", "a\\nb|c\\n"}});
  // a string that is both ends the record
  expect_readings({{.delimiters = {u",", u"\n"}}}, {{u"a\nb,c", "a / b|c"}});
}

TEST(DelimitedScanner, EmptyLines) {
  options strict{.delimiters = commas, .empty_lines = Empty::Error};
  options const read{.delimiters = commas, .empty_lines = Empty::Read};
  expect_readings({{.delimiters = commas}}, {{u"\na,b\n \t \n\nc\n\n", "a|b / c"}, {u"", ""}});
  expect_readings({read}, {{u"\na,b\n  \nc", "() / a|b / () / c"},
                           // a line ending at the very end makes one record more
                           {u"a\n", "a / ()"},
                           {u"a\n\n", "a / () / ()"},
                           {u"a\n\uFFFFb", "a / ()"},
                           {u"a\uFFFF\n", "a"}});
  expect_readings({read, {}, support::read_a_sample}, {{u"\na\n\n", "() / a / ()"}});
  expect_readings({strict}, {{u"a\n\nb", "a !empty_line_rule 1,0,"},
                             {u"a\nb,c\n \nd", "a / b|c !empty_line_rule 2,0,"},
                             {u" a \nb", " a  / b"}});
  // blank, and yet of several fields
  expect_readings({{.delimiters = commas, .whitespace = u" ,", .empty_lines = Empty::Read}},
                  {{u"a\n , ", "a /  | "}});
  strict.whitespace = u"";
  expect_readings({strict}, {{u" \na", "  / a"}, {u",", "|"}});
}

TEST(DelimitedScanner, Limits) {
  auto const all = textio::unknown_count;
  for (auto const& [limits, expected] : support::Rows<support::ReadLimits, std::string_view>{
           {{0, all, false}, ""},
           {{all, 0, false}, ""},
           {{1, all, false}, "a"},
           {{2, all, false}, "a / ()"},
           {{2, all, true}, "a / () / b"},
           {{3, all, false}, "a / () / b"},
           {{all, 2, true}, "a / ()"},
           {{all, all, false}, "a / () / b / c / ()"}}) {
    How const how{{.delimiters = commas, .empty_lines = Empty::Read}, {}, limits};
    EXPECT_EQ(support::read(how, u"a\n\nb\nc\n"), expected) << limits.records << limits.lines;
  }
  // lines that are skipped are scanned all the same, but not counted as records
  expect_readings({{.delimiters = commas}, {}, {all, 2, false}}, {{u"\na\nb", "a"}});
  expect_readings({{.delimiters = commas}, {}, {2, all, false}}, {{u"\na\n\nb\nc", "a / b"}});
  expect_readings({{.delimiters = commas}, {}, support::read_for_real, 2},
                  {{u"a,b,c\nd", "a|b / d"}});
  expect_readings({{.delimiters = commas}, {}, support::read_for_real, 0}, {{u"a\nb,", "() / ()"}});
}

TEST(DelimitedScanner, FindLineStart) {
  for (auto const& [how, text, pos, expected] :
       support::Rows<options, std::u16string_view, std::size_t, std::size_t>{
           {{.delimiters = commas}, u" \t,,a", 0, 2},
           {{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}, u"  ,,a", 0, 4},
           {{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}, u"  ,,a", 3, 4},
           {{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}, u" , a", 0, 2},
           {{.delimiters = commas, .leading_delimiters_rule = Leading::Ignore}, u",,", 0, 2},
           {{.delimiters = {u"::"}, .leading_delimiters_rule = Leading::Ignore}, u" :::a", 0, 3},
           {{.delimiters = {u""}, .leading_delimiters_rule = Leading::Ignore}, u" a", 0, 1},
       }) {
    textio::parser::DelimitedRecordReader const reader(how);
    EXPECT_EQ(reader.find_line_start(textio::Field(text), pos), expected) << support::show(text);
  }
}

}  // namespace
