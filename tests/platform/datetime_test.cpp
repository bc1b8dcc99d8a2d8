// SPDX-License-Identifier: MIT
//
// Which texts are dates and times: the built-in forms, and formats of pattern letters.
#include "text_format_detection/platform/datetime.hpp"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"

namespace {

bool is_date(std::u16string_view const text, std::u16string const& format = u"") {
  return ostrel::io::text::typeconversion::is_datetime(textio::Field(text), format);
}

std::string answer(std::u16string_view const text, std::u16string const& format) {
  try {
    return is_date(text, format) ? "yes" : "no";
  } catch (std::invalid_argument const&) {
    return "error";
  }
}

TEST(Datetime, BuiltInFormsAndFormats) {
  support::for_each_row("platform/datetime.tsv", [](support::Row const& row) {
    auto const format = support::value_of<std::u16string>(row.with);
    for (std::size_t cell = 1; cell < row.cells.size(); ++cell) {
      EXPECT_EQ(answer(row.text(cell), format), row.cells[0]) << row.cells[cell];
    }
  });
}

TEST(Datetime, WrongFormatsAreExplained) {
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
