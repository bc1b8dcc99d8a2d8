// SPDX-License-Identifier: MIT
//
// Header lines from deviations. In the comments: the squared running means, and their bends.
#include "text_format_detection/detection/header_lines.hpp"

#include <gtest/gtest.h>

#include "tests/support/text.hpp"

namespace {

using textio::detection::get_header_lines;
using Deviations = std::vector<std::size_t>;

struct HeaderRow {
  Deviations deviations;
  std::size_t minimum;
  std::size_t expected;
  std::size_t expected_for_blanks;
};

void expect_headers(std::vector<HeaderRow> const& rows) {
  for (auto const& [deviations, minimum, expected, expected_for_blanks] : rows) {
    EXPECT_EQ(get_header_lines(deviations, minimum, false), expected) << support::show(deviations);
    EXPECT_EQ(get_header_lines(deviations, minimum, true), expected_for_blanks)
        << "blanks: " << support::show(deviations);
  }
}

TEST(HeaderLines, FewLines) {
  expect_headers({{{5}, 0, 0, 0},
                  {{0}, 3, 3, 3},
                  {{3, 0}, 0, 1, 1},
                  {{0, 3}, 7, 1, 1},
                  {{2, 2}, 7, 0, 0},
                  {{0, 0, 0}, 0, 0, 0},
                  {{3, 0, 0}, 0, 1, 1},
                  // the last line is never looked at
                  {{0, 0, 9}, 0, 0, 0}});
}

TEST(HeaderLines, Minimum) {
  expect_headers({{{4, 0, 0, 0, 0, 0}, 0, 1, 1},
                  {{4, 0, 0, 0, 0, 0}, 1, 1, 1},
                  {{4, 0, 0, 0, 0, 0}, 5, 5, 5},
                  {{4, 0, 0, 0, 0, 0}, 9, 9, 9},
                  {{0, 0, 1, 2}, 3, 3, 3},
                  {{0, 1, 2, 5}, 2, 2, 2},
                  // pulled back below the minimum when the lines above do not deviate
                  {{0, 2, 5}, 1, 0, 2},
                  {{0, 0, 3, 3, 3, 0, 0, 0}, 1, 5, 5}});
}

TEST(HeaderLines, SharpestBend) {
  expect_headers({{{3, 3, 0, 0, 0, 0, 0}, 0, 2, 2},
                  {{2, 2, 3}, 0, 1, 2},
                  {{3, 5, 3}, 0, 2, 2},
                  {{1, 2, 3, 0, 0, 0, 0, 0}, 0, 3, 3},
                  {{5, 0, 0, 0, 1, 0, 0, 0}, 0, 1, 1},
                  {{7, 0, 7, 0, 0, 0, 0, 0, 0}, 0, 3, 1},
                  {{2, 0, 9, 0, 0, 0, 0, 0, 0}, 0, 3, 3},
                  // most of the lines: no header after all
                  {{3, 3, 3, 0}, 0, 0, 0},
                  {{3, 3, 3, 3, 0, 0}, 0, 4, 4},
                  {{3, 3, 3, 3, 0}, 0, 0, 0}});
}

}  // namespace
