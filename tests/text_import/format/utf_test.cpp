// SPDX-License-Identifier: MIT
#include "text_import/format/utf.hpp"

#include <cstdint>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/text_import/tables.hpp"

namespace textimport {
namespace {

/// The code units in hexadecimal, apart by blanks.
std::string units_of(std::u16string const& text) {
  std::ostringstream units;
  for (char16_t const unit : text) {
    units << (units.tellp() > 0 ? " " : "") << std::hex << std::uint16_t{unit};
  }
  return units.str();
}

TEST(utf, reads_utf8_and_refuses_everything_else) {
  made::for_each_row("format/utf8.tsv", [](made::cells const& row) {
    SCOPED_TRACE(row[2]);
    std::optional<std::u16string> const text = from_utf8(row[0]);
    EXPECT_EQ(text ? units_of(*text) : "bad", row[1]);
    if (text) {
      EXPECT_EQ(to_utf8(*text), row[0]);
      EXPECT_FALSE(has_lone_surrogate(*text));
    }
  });
}

TEST(utf, writes_the_replacement_character_for_lone_surrogates) {
  support::for_each_row("text_import/format/lone_surrogates.tsv", [](support::Row const& row) {
    auto const text = support::value_of<std::u16string>(row.value(0));
    EXPECT_EQ(to_utf8(text), row.cells.at(1));
    EXPECT_EQ(has_lone_surrogate(text), row.cells.at(2) == "lone");
  });
}

TEST(utf, every_character_comes_back) {
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    if (is_surrogate(c)) {
      continue;
    }
    std::string bytes;
    append_utf8(bytes, c);
    std::u16string units;
    append_utf16(units, c);
    ASSERT_EQ(from_utf8(bytes), units) << std::hex << static_cast<std::uint32_t>(c);
    std::size_t pos = 0;
    ASSERT_EQ(next_character(units, pos), c);
    ASSERT_EQ(pos, units.size());
  }
}

}  // namespace
}  // namespace textimport
