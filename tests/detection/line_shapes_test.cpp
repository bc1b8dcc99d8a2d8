// SPDX-License-Identifier: MIT
//
// Lines as shapes: are they padded to one width, where does their block begin, and which columns
// does the overlay of all of them show?
#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/detection/fixed_width_detection_internal.hpp"
#include "text_format_detection/detection/line_alignment_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using support::make_lines;
using support::show;
using textio::detection::BlankMap;
using Lines = std::vector<std::u16string_view>;

TEST(LineAlignment, LinesAreAligned) {
  for (auto const& [lines, header_lines, expected] : support::Rows<Lines, std::size_t, bool>{
           {{u"a b ", u"cc d"}, 0, true},
           {{u"a b", u"cc d"}, 0, false},
           {{u"cc d", u"a b"}, 0, false},
           {{u"cc d \t ", u"a  b"}, 0, true},
           {{u"a title line", u"a b ", u"cc d"}, 1, true},
           {{u"a title line", u"a b ", u"cc d"}, 0, false},
           {{u"a b", u"", u"c d"}, 0, false},
           {{u"a b", u"", u"   "}, 0, false},
           {{u"a b", u"c d", u"", u""}, 0, true},
           {{u"a b"}, 1, false},
           {{u"a b"}, 2, false},
           {{}, 0, false},
       }) {
    EXPECT_EQ(textio::detection::lines_are_aligned(make_lines(lines), header_lines), expected)
        << show(make_lines(lines));
  }
}

TEST(LineAlignment, EqualLengthHeader) {
  for (auto const& [lines, header_lines, detect, expected] :
       support::Rows<Lines, std::size_t, bool, std::size_t>{
           {{u"title", u"ab", u"cd", u"ef"}, 3, true, 1},
           {{u"title", u"ab", u"cd", u"ef"}, 3, false, 3},
           {{u"gh", u"ab", u"cd"}, 2, true, 0},
           {{u"gh", u"title", u"cd", u"ef"}, 3, true, 2},
           {{u"gh", u"", u"cd"}, 2, true, 2},
           {{u"gh", u"", u""}, 2, true, 1},
           {{u"", u"", u""}, 2, true, 0},
           {{u"gh", u"cd"}, 0, true, 0},
           // past the end: a line there has length 0
           {{u"gh", u"cd", u""}, 7, true, 2},
           {{u"gh", u"cd"}, 7, true, 2},
           {{u"gh", u"cd"}, 7, false, 7},
       }) {
    textio::FixedWidthStrategy strategy({}, {}, {2});
    strategy.header_lines(header_lines);
    EXPECT_EQ(textio::detection::equal_length_header(strategy, make_lines(lines), detect), expected)
        << show(make_lines(lines));
  }
}

TEST(FixedWidthDetection, OverlayOfLines) {
  for (auto const& [lines, header_lines, num_columns, variation, widths] :
       support::Rows<Lines, std::size_t, std::size_t, std::string_view, std::string_view>{
           {{u"a   b", u"cc  d"}, 0, 2, "0", "2 3"},
           {{u"title", u"a   b", u"cc  d"}, 1, 2, "0", "2 3"},
           {{u"  a b ", u"  ccd "}, 0, 1, "0.5", "5 1"},
           {{u"a b c", u"a b c", u"abb c", u"abb c"}, 0, 2, "0.5", "3 2"},
           // text that only a longer line has opens no gap
           {{u"a b", u"c d   e"}, 0, 2, "0", "1 6"},
           {{u"a b ", u"c d   e"}, 0, 3, "0.5", "1 2 4"},
           {{u"a b c", u"a"}, 0, 3, "0", "1 2 2"},
           // an empty line repeats the count before it; a tab is not blank
           {{u"a b", u"", u"abb"}, 0, 1, "0.333333", "3"},
           {{u"", u"a b"}, 0, 1, "0.5", "3"},
           {{u"a\tb", u"c\td"}, 0, 1, "0", "3"},
           {{u"   ", u"  "}, 0, 1, "0", "3"},
           {{u" a", u"b "}, 0, 1, "0", "2"},
           {{u"a b"}, 1, 1, "nan", ""},
           {{u"a b"}, 5, 1, "nan", ""},
       }) {
    auto const layout = textio::detection::overlay_lines(make_lines(lines), header_lines);
    EXPECT_EQ(layout.num_columns, num_columns) << show(make_lines(lines));
    EXPECT_EQ(show(std::abs(layout.variation)), variation) << show(make_lines(lines));
    EXPECT_EQ(show(layout.widths), widths) << show(make_lines(lines));
  }
}

TEST(FixedWidthDetection, ColumnsAreKeptUpToDateWhileBlanksGo) {
  BlankMap map(9);

  for (auto const& [line, num_columns, widths] :
       support::Rows<std::u16string_view, std::size_t, std::string_view>{
           {u"         ", 1, "9"},
           {u"    x", 1, "5 4"},
           {u"  x", 2, "3 2 4"},
           {u"   x   x", 2, "5 3 1"},
           {u"x", 3, "1 4 3 1"},
           {u"         xx", 4, "1 4 3 3"},
           {u" x      x ", 2, "5 6"}}) {
    map.overlay(line);
    EXPECT_EQ(map.num_columns(), num_columns) << show(line);
    EXPECT_EQ(show(map.column_widths()), widths) << show(line);
  }
}

}  // namespace
