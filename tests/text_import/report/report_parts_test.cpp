// SPDX-License-Identifier: MIT
//
// The parts that reports are made of: text as it may be shown, lines, tables, names.
#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include "tests/support/table.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/report/character_cells_internal.hpp"
#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/reading_words_internal.hpp"
#include "text_import/report/text_table_internal.hpp"
#include "text_import/report/wrapping.hpp"

namespace textimport {
namespace {

void for_each_row(std::string const& table, std::function<void(support::Row const&)> const& check) {
  support::for_each_row("text_import/report/" + table, check);
}

/// The UTF-8 of a cell.
std::string utf8(support::Row const& row, std::size_t const cell) {
  return to_utf8(row.text(cell));
}

TEST(report_parts, lines_are_broken_at_blanks) {
  for_each_row("wrapping.tsv", [](support::Row const& row) {
    std::string lines = wrapped(utf8(row, 2), row.count(0), row.count(1));
    std::ranges::replace(lines, '\n', '|');
    EXPECT_EQ(lines, utf8(row, 3));
  });
}

TEST(report_parts, what_is_shown_is_harmless_and_its_width_known) {
  for_each_row("display_text.tsv", [](support::Row const& row) {
    std::size_t const most = row.cells[1] == "any" ? any_width : row.count(1);
    DisplayText const shown = display_text(row.text(0), most);
    EXPECT_EQ(shown.utf8, utf8(row, 2));
    EXPECT_EQ(shown.cells, row.count(3));
  });
  EXPECT_EQ(display_text(std::u16string(1, u'\xD800')).utf8, "\\ud800");
  DisplayText const bytes = display_bytes("a\xff\xc3\xa9\xe2\x82");
  EXPECT_EQ(bytes.utf8, "a\\xff\xc3\xa9\\xe2\\x82");
  EXPECT_EQ(bytes.cells, 14U);
}

TEST(report_parts, delimiters_have_names) {
  for_each_row("character_names.tsv", [](support::Row const& row) {
    EXPECT_EQ(delimiter_name(row.text(0)), utf8(row, 1));
    EXPECT_EQ(delimiter_names(row.text(0)), utf8(row, 2));
  });
}

/// What another library says of a character, as far as its edition of Unicode knows it.
std::optional<std::size_t> cells_by_icu(UChar32 const c) {
  std::uint32_t const mask = U_MASK(u_charType(c));
  bool const joins = c == 0x200C || c == 0x200D;
  if (!joins &&
      (mask & (U_GC_CC_MASK | U_GC_CF_MASK | U_GC_CS_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK)) != 0) {
    return std::nullopt;
  }
  bool const is_vowel = c >= 0x1160 && c <= 0x11FF;
  if (joins || is_vowel || (mask & (U_GC_MN_MASK | U_GC_ME_MASK)) != 0) {
    return 0;
  }
  int const width = u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

TEST(report_parts, the_table_of_widths_agrees_with_unicode) {
  std::size_t num_checked = 0;
  for (UChar32 c = 0; c <= UCHAR_MAX_VALUE; ++c) {
    UVersionInfo age;
    u_charAge(c, age);
    if (age[0] > 0 && age[0] <= 14 && u_isdefined(c) != 0) {
      EXPECT_EQ(reporting::cells_of(static_cast<char32_t>(c)), cells_by_icu(c)) << c;
      ++num_checked;
    }
  }
  EXPECT_GT(num_checked, 140000U);
}

TEST(report_parts, shares_are_all_or_nothing_only_when_they_are) {
  std::vector<std::pair<double, std::string>> const cases{
      {0, "0 %"}, {0.001, "<1 %"}, {0.006, "1 %"}, {0.5, "50 %"}, {0.997, "99 %"}, {1, "100 %"},
  };
  for (auto const& [share, text] : cases) {
    EXPECT_EQ(reporting::share_text(share), text);
  }
}

using reporting::aligned_table;
using reporting::ruled_table;

TEST(report_parts, tables_leave_out_columns_that_find_no_room) {
  reporting::Rows const rows{{u"1", u"Ana", u"a long value that has to be cut"}, {u"10", u"日本"}};
  std::vector<reporting::TableColumn> const columns{{u"n", true}, {u"name"}, {u"note"}};
  EXPECT_EQ(aligned_table(columns, rows, {.width = 80, .indent = 2}),
            "  n   name  note\n"
            "  --  ----  -------------------------------\n"
            "   1  Ana   a long value that has to be cut\n"
            "  10  日本\n");
  EXPECT_EQ(aligned_table(columns, rows, {.width = 30, .indent = 2}),
            "  n   name  note\n"
            "  --  ----  --------------\n"
            "   1  Ana   a long valu...\n"
            "  10  日本\n");
  EXPECT_EQ(aligned_table(columns, rows, {.width = 16, .indent = 2}),
            "  n   name\n"
            "  --  ----\n"
            "   1  Ana\n"
            "  10  日本\n"
            "  (columns 1 to 2 of 3)\n");
}

TEST(report_parts, fixed_widths_stand_under_a_ruler) {
  reporting::Rows const rows{{u"FH", u" 512.0"}, {u"日", u"9"}};
  EXPECT_EQ(ruled_table({2, 6}, {u"id", u"height"}, rows, {.width = 40, .indent = 2}),
            "   id height\n"
            "  |2-|6-----|\n"
            "  |FH| 512.0|\n"
            "  |日|9     |\n");
  EXPECT_EQ(ruled_table({2, 6}, {}, rows, {.width = 8, .indent = 2}),
            "  |2-|\n"
            "  |FH|\n"
            "  |日|\n"
            "  (columns 1 to 1 of 2)\n");
}

}  // namespace
}  // namespace textimport
