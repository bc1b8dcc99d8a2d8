// SPDX-License-Identifier: MIT
//
// One text to one type: the order of the tests, the grammar of values and the options that bend it.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "text_format_detection/strategies/field_classifier_internal.hpp"

namespace {

using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using textio::enums::ColumnType;
using textio::strategies::classify_field;

struct Row {
  ColumnType type;
  std::vector<std::u16string_view> texts;
};

void expect_types(TypeAnalyzerOptions const& options, std::vector<Row> const& rows) {
  for (auto const& [type, texts] : rows) {
    for (auto const text : texts) {
      EXPECT_EQ(static_cast<int>(classify_field(options, text)), static_cast<int>(type))
          << std::string(text.begin(), text.end());
    }
  }
}

TEST(FieldClassifier, DefaultOptions) {
  expect_types(
      {},
      {{ColumnType::Number,
        {u"0", u"+1", u"-1.5", u"5.", u".5", u"1e5", u"1.E-5", u".5d+03", u"NaN", u"-nan", u"+INF",
         u"3i", u"-1.5e3j", u"1+2i", u"1e3-.5e-2j", u"1+NaNi", u"Inf-1j", u"-nan+1i", u"1-infi"}},
       {ColumnType::Text,
        {u"abc",     u"-",     u".",       u"+.",     u".e5",    u"1e",        u"1e+",
         u"1f5",     u"--1",   u"1+2",     u"2k",     u"1+i",    u"1+-2i",     u"1i+2",
         u"1+2i3i",  u"1+2I",  u"i",       u"NaNi",   u"NaNs",   u"nats",      u"+NaT",
         u"1,5",     u"1 2",   u"1.2.3",   u",,",     u"0x1G",   u"0b102",     u"-0x1F",
         u"0xx1",    u"x0x1",  u"12::30",  u"12:",    u":12",    u"1:2:3:4:5", u"1:2:3.5.",
         u"1:2.5:3", u"+-1:2", u"12:30 x", u"\u0661", u"1\uFFFF"}},
       {ColumnType::DateTime,
        {u"NaT", u"nAt", u"2024-01-05 10:30:00", u"10:30:00 2024-01-05", u"05-Jan-2024 10:30",
         u"-1:2:3.   Jan 5, 2024", u"5/1/24  99:99:99.5"}},
       {ColumnType::Date, {u"2024-01-05", u"5 January 2024", u"20240105T103000"}},
       {ColumnType::Duration,
        {u"12:30:05.5", u"1:02:03:04", u"-1:2:3.", u"99:99:99", u"+1:2:3:4."}},
       {ColumnType::ShortDuration, {u"12:30", u"+999:0.", u"-1:2.25"}},
       {ColumnType::Hexadecimal, {u"0x", u"0X", u"0x1F", u"0Xabcdef0123456789ABCDEF"}},
       {ColumnType::Binary, {u"0b", u"0B", u"0b0110", u"0B1"}},
       {ColumnType::Delimiter, {u",", u"|", u";"}}});
  // a date beside a time that lacks the seconds, or that is cut by more than spaces
  expect_types(
      {},
      {{ColumnType::Text,
        {u"10:30 2024-01-05", u"10:30:00\t2024-01-05", u"10:30:00 2024-01-05 ", u"1:2:3 4:5:6"}}});
}

TEST(FieldClassifier, NumberOptions) {
  expect_types(
      {.exponent_characters = u"ki", .decimal_digit_limit = 2, .decimal_digit_limit_set = true},
      {{ColumnType::Number, {u"1.23", u"1.23k4", u"1i5", u"1i", u"1.2-3.45i", u"12345"}},
       {ColumnType::Text, {u"1.234", u"1.234i", u"1-1.234i", u"1e5"}}});
  expect_types({.decimal_digit_limit = 0, .decimal_digit_limit_set = true},
               {{ColumnType::Number, {u"1.", u"1.e5"}}, {ColumnType::Text, {u"1.5", u".5"}}});
  expect_types({.decimal_digit_limit = 0}, {{ColumnType::Number, {u"1.5"}}});
  // a digit anywhere will do, but only behind every other test, and without one nothing changes
  expect_types({.embedded_numbers = true}, {{ColumnType::Number, {u"5 kg", u"x1", u"1,5", u"0x1G"}},
                                            {ColumnType::Date, {u"2024-01-05"}},
                                            {ColumnType::Binary, {u"0b1"}},
                                            {ColumnType::Text, {u"kg", u"xNaN"}}});
}

TEST(FieldClassifier, RemovalAndReplacement) {
  TypeAnalyzerOptions options = {.first_replacement_set = u",",
                                 .first_replacement = u'.',
                                 .second_replacement_set = u";h",
                                 .second_replacement = u',',
                                 .removal_set = u"'."};
  expect_types(options, {{ColumnType::Text, {u"1'000", u"1,5", u"1;5"}}});
  options.remove_characters = true;
  expect_types(options, {{ColumnType::Number, {u"'1.000'", u"1'2'3", u"1.2.3"}},
                         {ColumnType::Text, {u"1,5", u"1:2:3'", u"'0x1"}},
                         {ColumnType::Date, {u"2024-1-5"}}});
  // the second set first: what it puts in is replaced by the first
  options.replace_characters = true;
  expect_types(options, {{ColumnType::Number, {u"1.000,5", u"1;5", u"1h5"}},
                         {ColumnType::ShortDuration, {u"1:2;5", u"1:2.5"}},
                         {ColumnType::Text, {u"1:2:3'", u"1:2;5;"}}});
  options.first_replacement = u'1';
  expect_types(options, {{ColumnType::Text, {u"0b,"}}, {ColumnType::Number, {u"0;"}}});
  // nothing is left of the copy
  options.removal_set = u"0123456789";
  expect_types(options, {{ColumnType::Text, {u"12"}}});
}

TEST(FieldClassifier, DatetimeFormat) {
  expect_types({.datetime_format = u"d.M.yyyy"},
               {{ColumnType::Date, {u"5.1.2024"}},
                {ColumnType::DateTime, {u"5.1.2024 10:30:00", u"10:30:00 5.1.2024"}},
                {ColumnType::Text, {u"2024-01-05", u"5.1.2024 10:30"}}});
  // before the format is asked, these are a number and a duration
  expect_types({.datetime_format = u"yyyy"}, {{ColumnType::Number, {u"2024"}}});
  expect_types({.datetime_format = u"HH:mm"}, {{ColumnType::ShortDuration, {u"10:30"}}});
  // a wrong format makes nothing a date
  expect_types({.datetime_format = u"qqq"}, {{ColumnType::Text, {u"2024-01-05", u"1:2:3 x"}}});
}

TEST(FieldClassifier, LongTexts) {
  std::size_t const many = 2'000'000;
  std::u16string const ones(many, u'1');
  std::u16string const spaces(many, u' ');
  std::u16string groups;
  for (std::size_t i = 0; i < many; ++i) {
    groups += u"1:";
  }
  expect_types({}, {{ColumnType::Number, {ones}}});
  EXPECT_EQ(classify_field({}, ones + u'x'), ColumnType::Text);
  EXPECT_EQ(classify_field({}, u"0x" + ones), ColumnType::Hexadecimal);
  EXPECT_EQ(classify_field({}, ones + u':' + ones), ColumnType::ShortDuration);
  EXPECT_EQ(classify_field({}, groups), ColumnType::Text);
  EXPECT_EQ(classify_field({}, u"1:2:3" + spaces + u"2024-01-05"), ColumnType::DateTime);
  EXPECT_EQ(classify_field({}, spaces + u"2024-01-05"), ColumnType::Text);
}

}  // namespace
