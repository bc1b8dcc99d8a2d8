// SPDX-License-Identifier: MIT
//
// Files that are no text are refused with a sentence that says what they look like; texts that
// only begin like them are not.
#include <gtest/gtest.h>

#include "tests/text_import/made_data.hpp"
#include "tests/text_import/tables.hpp"
#include "text_import/source/encoding/binary_content_internal.hpp"

namespace textimport {
namespace {

using namespace std::string_literals;
using made::Outcome;
using made::read_all;

TEST(binary_content, is_named_and_is_not_what_only_begins_alike) {
  made::for_each_row("source/encoding/binary_content.tsv", [&](made::cells const& row) {
    Outcome const read = read_all(row[0]);
    SCOPED_TRACE(row[1] + " " + row[0] + ": " + read.message);
    EXPECT_EQ(read.error, row[1] == "text" ? "" : "binary-content");
    EXPECT_TRUE(row[1] == "text" || read.message.find(row[1]) != std::string::npos);
  });
  EXPECT_EQ(read_all(made::zip({{"[Content_Types].xml", "<x/>"}})).error, "binary-content");
  EXPECT_EQ(read_all(std::string(257, 'a') + "ustar\0"s).error, "binary-content");
}

TEST(binary_content, has_many_control_characters_of_several_kinds) {
  std::string noise;
  std::string small_numbers;
  std::uint32_t state = 1;
  for (int i = 0; i < 4000; ++i) {
    state = state * 1664525 + 1013904223;
    noise.push_back(static_cast<char>(state >> 24U));
    small_numbers.push_back(static_cast<char>(state >> 28U));
    small_numbers.push_back('\0');
  }
  EXPECT_EQ(read_all(noise).error, "binary-content");
  EXPECT_EQ(read_all(made::packed("gzip", noise)).error, "binary-content");
  EXPECT_EQ(read_all(small_numbers).error, "binary-content");
  std::string const odd = "\1\2\3\4\5\6\7\16\17\177\1\2\3\4\5\6\7\16\17\177";
  EXPECT_EQ(read_all(std::string(300, 'x') + odd).error, "binary-content");
  EXPECT_EQ(read_all(std::string(600, 'x') + odd).error, "") << "one in 32";
  EXPECT_EQ(read_all("a,b\nc,d\n" + std::string(1000, '\0')).error, "") << "padding";
  EXPECT_EQ(read_all(made::table_of(2000) + "\1\2\3\4\5\6\7").error, "") << "few in much text";
  OpenOptions named;
  named.encoding = "IBM037";
  EXPECT_EQ(read_all(noise, named).error, "") << "whoever names the encoding says that it is text";
}

}  // namespace
}  // namespace textimport
