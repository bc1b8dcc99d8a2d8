// SPDX-License-Identifier: MIT
//
// Which texts are dates and times: the built-in forms, and formats of pattern letters.
#include "text_format_detection/platform/datetime.hpp"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace {

using ostrel::io::text::typeconversion::is_datetime;

bool is_date(std::u16string_view const text, std::u16string const& format = u"") {
  return is_datetime(textio::Field(text), format);
}

/// The texts are ASCII, which a failure prints as it stands.
std::string printable(std::u16string_view const text) {
  return {text.begin(), text.end()};
}

TEST(Datetime, BuiltInForms) {
  for (std::u16string_view const text :
       {u"2024-01-05", u"2024-1-5", u"2024/1/5", u"2024.1.5", u"0000-02-29", u"2000-02-29",
        // either order of day and month, but with dots the day stands first
        u"13-12-2024", u"12/13/2024", u"13/12/2024", u"29/2/24", u"2/29/24", u"31.12.2024",
        u"05-Jan-2024", u"5-SEPTEMBER-24", u"5/may/2024", u"5 January 2024", u"Jan 5, 2024",
        u"december 31 1999", u"Mon 5 Jan 2024", u"monday,  2024-01-05", u"Tue, Jan 5, 2024",
        u"2024-01-05T0:00", u"2024-01-05t23:59:59", u"5/1/24   9:30", u"2024-01-05 9:30:05.123456",
        u"2024-01-05 12:30PM", u"2024-01-05 1:30:00.5 am", u"2024-01-05 9:30pmz",
        u"2024-01-05 9:30 PM GMT", u"2024-01-05T09:30:00Z", u"2024-01-05T09:30:00+2359",
        u"2024-01-05 9:30 -01:00", u"20240105T093005", u"20240105t093005-05"}) {
    EXPECT_TRUE(is_date(text)) << printable(text);
  }
}

TEST(Datetime, NotBuiltIn) {
  for (std::u16string_view const text :
       {u"", u" ", u"Mon", u"Jan", u"2024", u"9:30", u"20240105", u"2024-01", u"24-01-05",
        // dates that do not exist
        u"2023-02-29", u"1900-02-29", u"2024-13-01", u"2024-00-10", u"2024-04-31", u"2024-01-00",
        u"13/13/2024", u"12.13.2024", u"31-Jun-2024", u"Feb 30, 2024",
        // years and separators out of place
        u"5-1-24", u"5.1.24", u"5 Jan 24", u"5/Jan/24", u"5.Jan.2024", u"5-1/2024", u"5 1 2024",
        u"5-Janu-2024", u"5  Jan 2024", u"Jan 5,2024", u"Jan 5 24", u"Jan-5-2024", u"2024-1-005",
        u"12024-01-05", u"5/1/202", u"Mon2024-01-05", u"Mon , 2024-01-05", u"Mo 2024-01-05",
        // nothing is trimmed, nothing left over
        u" 2024-01-05", u"2024-01-05 ", u"2024-01-05T", u"2024-01-05x", u"2024-01-05 T9:30",
        // times
        u"2024-01-05 24:00", u"2024-01-05 9:60", u"2024-01-05 9:3", u"2024-01-05 9:30:60",
        u"2024-01-05 9:30:5", u"2024-01-05 9:30:05.", u"2024-01-05 013:00", u"2024-01-05 13:00 PM",
        u"2024-01-05 0:30am", u"2024-01-05 9:30  PM", u"2024-01-05 9:30 Z PM", u"2024-01-05 9:30 ",
        u"2024-01-05 930", u"2024-01-05 9:30+24", u"2024-01-05 9:30+1", u"2024-01-05 9:30+01:0",
        u"2024-01-05 9:30+0060", u"2024-01-05 9:30 UT", u"20240105 093005", u"20240105T09300",
        u"20240105T240000", u"20240105T093005 Z", u"20240230T093005", u"Mon 20240105T093005",
        u"\uFF12024-01-05"}) {
    EXPECT_FALSE(is_date(text)) << printable(text);
  }
}

struct FormatCase {
  std::u16string format;
  std::vector<std::u16string> accepted;
  std::vector<std::u16string> refused;
};

TEST(Datetime, Formats) {
  std::vector<FormatCase> const cases = {
      {u"yyyy-MM-dd", {u"2024-02-29"}, {u"2024-2-29", u"2023-02-29", u"24-02-29", u"2024-02-29 "}},
      {u"y/M/d", {u"2024/2/9", u"2024/12/31"}, {u"24/2/9", u"2024/13/1", u"2024/4/31"}},
      {u"uuuu", {u"0000"}, {u"000", u"00000", u"+000"}},
      {u"dd.MM.yy", {u"29.02.24"}, {u"29.02.23", u"29.02.2024"}},
      {u"d.M", {u"29.2", u"31.1"}, {u"30.2", u"31.6", u"0.1", u"1.0"}},
      {u"d", {u"31"}, {u"32", u"0"}},
      {u"d yyyy", {u"31 2023"}, {u"32 2023"}},
      {u"dMMMyyyy", {u"5jan2024", u"05JAN2024"}, {u"5january2024", u"30feb2024"}},
      {u"MMMM d", {u"May 5", u"september 30"}, {u"Jan 5", u"september 31"}},
      {u"EEE, d", {u"mon, 5"}, {u"Monday, 5", u"mon 5"}},
      {u"EEEE'x'", {u"Wednesdayx"}, {u"Wedx"}},
      {u"H:m:s", {u"23:59:59", u"0:0:0"}, {u"24:0:0", u"1:60:1", u"1:1:60"}},
      {u"hh:mm a", {u"12:00 pm"}, {u"00:00 PM", u"13:00 PM", u"1:00 PM", u"01:00 P"}},
      {u"ss.SSS", {u"01.000"}, {u"01.00", u"01.0000", u"01.00x"}},
      {u"HHX", {u"10Z", u"10utc", u"10+05", u"10-0530", u"10+05:30"}, {u"10", u"10+5", u"10+0560"}},
      {u"zzzzd", {u"+01001", u"+010012", u"+011"}, {u"+010099", u"Z32"}},
      {u"yyyy'T''s'''", {u"2024T's'"}, {u"2024t's'", u"2024T's"}},
      {u"yyyy\u5E74", {u"2024\u5E74"}, {u"2024"}},
      // any split of the digits that makes a date
      {u"dM", {u"111", u"311", u"302", u"3112"}, {u"130", u"322", u"3113"}},
      {u"Mdyyyy", {u"2292024", u"1112023", u"02292024"}, {u"2292023", u"112023x"}},
      {u"d1M", {u"1111", u"2111"}, {u"11", u"2222"}},
      // of a part given twice the last one counts, and the first one has to be in range
      {u"d M d", {u"31 2 28", u"31 4 30"}, {u"1 2 30", u"32 2 1"}},
      {u"yyyy M d yy", {u"2023 2 29 24"}, {u"2024 2 29 23"}},
  };
  for (auto const& [format, accepted, refused] : cases) {
    for (auto const& text : accepted) {
      EXPECT_TRUE(is_date(text, format)) << printable(format) << " <- " << printable(text);
    }
    for (auto const& text : refused) {
      EXPECT_FALSE(is_date(text, format)) << printable(format) << " <- " << printable(text);
    }
  }
}

TEST(Datetime, WrongFormatsThrowWhateverTheText) {
  for (std::u16string const format : {u"yyy", u"uu", u"ddd", u"MMMMM", u"EEEEE", u"aa", u"HHH",
                                      u"Q", u"yyyyT", u"yyyy 'open", u"--", u"'yyyy'", u"''"}) {
    EXPECT_THROW((void)is_date(u"2024", format), std::invalid_argument) << printable(format);
  }
  try {
    (void)is_date(u"2024", u"yyyy-QQ");
    FAIL();
  } catch (std::invalid_argument const& error) {
    EXPECT_STREQ(error.what(),
                 "date-time format: unknown field of 2 times 'Q' at code unit 6; letters that "
                 "stand for themselves go into single quotes");
  }
}

std::u16string repeated(std::u16string_view const part, std::size_t const times) {
  std::u16string text;
  for (std::size_t i = 0; i < times; ++i) {
    text += part;
  }
  return text;
}

TEST(Datetime, LongFormatsAndTextsTakeLinearTime) {
  std::u16string const fields = repeated(u"dM", 100);  // 2 to the power of 200 splits
  EXPECT_TRUE(is_date(repeated(u"1", 300), fields));
  EXPECT_FALSE(is_date(repeated(u"1", 299) + u"0", fields + u"0H"));
  EXPECT_FALSE(is_date(repeated(u"1", 199), fields));
  EXPECT_THROW((void)is_date(repeated(u"1", 300), repeated(u"dM", 128)), std::invalid_argument);

  std::size_t const many = 2'000'000;
  EXPECT_TRUE(is_date(repeated(u"-", many) + u"5", repeated(u"-", many) + u"d"));
  EXPECT_TRUE(is_date(u"2024-01-05" + repeated(u" ", many) + u"9:30:05." + repeated(u"0", many)));
  EXPECT_FALSE(is_date(repeated(u"1", many)));
  EXPECT_FALSE(is_date(repeated(u"m", many)));
}

}  // namespace
