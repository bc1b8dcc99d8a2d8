// SPDX-License-Identifier: MIT
#include "text_import/source/encoding/encoding.hpp"

#include <map>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include "tests/text_import/made_data.hpp"
#include "tests/text_import/tables.hpp"

namespace textimport {
namespace {

using made::read_all;

std::string encoded(char const* const encoding, std::string const& utf8) {
  std::u16string const text = made::utf16(utf8);
  UErrorCode status = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(encoding, &status);
  std::string bytes(8 * text.size() + 16, '\0');
  std::int32_t const length =
      ucnv_fromUChars(converter, bytes.data(), static_cast<std::int32_t>(bytes.size()), text.data(),
                      static_cast<std::int32_t>(text.size()), &status);
  EXPECT_TRUE(U_SUCCESS(status)) << encoding;
  ucnv_close(converter);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

TEST(encoding, is_found_in_tables_and_gives_their_text) {
  std::map<std::string, std::string> texts;
  made::for_each_row("source/encoding/texts.tsv",
                     [&](made::cells const& row) { texts[row[0]] = row[1]; });
  made::for_each_row("source/encoding/encoding.tsv", [&](made::cells const& row) {
    SCOPED_TRACE(row[0] + " " + row[1] + " " + row[3]);
    std::string const bytes = row[2] + encoded(row[0].c_str(), texts.at(row[3]));
    std::u16string const text = made::utf16(texts.at(row[3]));
    made::Outcome const read = read_all(bytes);
    EXPECT_EQ(read.findings.encoding.name, row[0]);
    EXPECT_EQ(name_of(read.findings.encoding.reason), row[1]);
    EXPECT_EQ(read.findings.encoding.is_guess(), row[1] == "statistics");
    EXPECT_EQ(read.findings.encoding.mark_bytes, row[2].size());
    EXPECT_TRUE(read.whole == text);
    OpenOptions options;
    options.encoding = row[0];
    options.strict = true;
    EXPECT_TRUE(read_all(bytes, options).whole == text) << "when it is given";
  });
}

TEST(encoding, of_odd_bytes_is_decided_for_a_reason) {
  made::for_each_row("source/encoding/encoding_of_odd_bytes.tsv", [&](made::cells const& row) {
    EncodingFinding const found = find_encoding(row[0], row[1] == "ends");
    EXPECT_EQ(found.name, row[2]) << row[0];
    EXPECT_EQ(name_of(found.reason), row[3]) << row[0];
  });
}

TEST(encoding, is_given_by_any_of_its_names_or_near_ones_are_proposed) {
  made::for_each_row("source/encoding/encoding_given.tsv", [&](made::cells const& row) {
    try {
      EncodingFinding const found = given_encoding(row[0], row[1], "made");
      EXPECT_EQ(found.name, row[2]) << row[0];
      EXPECT_EQ(std::to_string(found.mark_bytes), row[3]) << row[0];
    } catch (ImportError const& error) {
      EXPECT_EQ(row[3], "unknown") << error.what();
      EXPECT_NE(error.message().find(row[2]), std::string::npos) << error.message();
    }
  });
  for (std::string const& name : encoding_names()) {
    EXPECT_NO_THROW(static_cast<void>(given_encoding(name, "", "made"))) << name;
  }
}

}  // namespace
}  // namespace textimport
