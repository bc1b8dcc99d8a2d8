// SPDX-License-Identifier: MIT
//
// Where columns of fixed width begin, and which lines have them.
#include <string>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_import/analysis/readings/fixed_widths_internal.hpp"

namespace textimport::analysis {
namespace {

std::vector<std::u16string> const line_endings{u"\n"};

std::string show(FixedColumns const& columns) {
  std::string shown;
  for (std::size_t const start : columns.starts) {
    shown += (shown.empty() ? "" : " ") + std::to_string(start);
  }
  return shown + (columns.by_ruler ? " ruled" : "") + (columns.are_touching ? " touching" : "");
}

std::string show(std::vector<FixedColumns> const& found) {
  std::string shown;
  for (FixedColumns const& columns : found) {
    shown += (shown.empty() ? "" : "; ") + show(columns);
  }
  return shown.empty() ? "none" : shown;
}

TEST(fixed_widths, are_shown_by_the_lines) {
  support::for_each_row(
      "text_import/analysis/readings/fixed_widths.tsv", [](support::Row const& row) {
        std::u16string const text = row.text(0);
        std::u16string const marker = row.text(1) == u"-" ? u"" : row.text(1);
        auto const found = find_fixed_columns(LineIndex(text, line_endings), marker);
        EXPECT_EQ(row.cells[2], show(found));
        for (FixedColumns const& columns : found) {
          EXPECT_EQ(columns.widths().size(), columns.starts.size());
          EXPECT_LE(columns.profile.agreement(), 1);
        }
      });
}

TEST(fixed_widths, fit_lines_that_are_not_torn) {
  std::u16string const text = u"aa  11  x\nbb  22  y\ncc  33  z\n";
  auto const found = find_fixed_columns(LineIndex(text, line_endings), {});
  ASSERT_FALSE(found.empty());
  EXPECT_TRUE(found.front().fits(u"dd  44  x"));
  EXPECT_TRUE(found.front().fits(u"dd  44")) << "the end of a line may be missing";
  EXPECT_FALSE(found.front().fits(u"a title")) << "a blank stands elsewhere";
  EXPECT_FALSE(found.front().fits(u"sum")) << "it does not reach the second column";
}

}  // namespace
}  // namespace textimport::analysis
