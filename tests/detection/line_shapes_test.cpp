// SPDX-License-Identifier: MIT
//
// Lines as shapes: are they padded to one width, where does their block begin, and which columns
// does the overlay of all of them show?
#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/fixed_width_detection_internal.hpp"
#include "text_format_detection/detection/line_alignment_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using support::show;

TEST(LineShapes, AlignmentBlockAndColumns) {
  support::for_each_row("detection/line_shapes.tsv", [](support::Row const& row) {
    std::string const& question = row.cells.at(0);
    std::u16string const text = row.text(1);
    textio::FieldArray const lines = support::make_lines(text);
    std::size_t const header_lines = row.count(2);
    if (question == "aligned") {
      EXPECT_EQ(textio::detection::lines_are_aligned(lines, header_lines), row.value(3));
    } else if (question == "block") {
      textio::FixedWidthStrategy strategy({}, {}, {2});
      strategy.header_lines(header_lines);
      EXPECT_EQ(textio::detection::equal_length_header(strategy, lines, row.value(3)),
                row.count(4));
    } else {
      EXPECT_EQ(question, "overlay");
      auto const layout = textio::detection::overlay_lines(lines, header_lines);
      EXPECT_EQ(layout.num_columns, row.count(3));
      EXPECT_EQ(show(std::abs(layout.variation)), row.cells.at(4));
      EXPECT_EQ(show(layout.widths), row.cells.at(5));
    }
  });
}

TEST(LineShapes, ColumnsAreKeptUpToDateWhileBlanksGo) {
  textio::detection::BlankMap map(9);
  support::for_each_row("detection/blank_map.tsv", [&map](support::Row const& row) {
    map.overlay(row.text(0));
    EXPECT_EQ(map.num_columns(), row.count(1));
    EXPECT_EQ(show(map.column_widths()), row.cells.at(2));
  });
}

}  // namespace
