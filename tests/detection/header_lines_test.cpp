// SPDX-License-Identifier: MIT
//
// Header lines from deviations.
#include "text_format_detection/detection/header_lines.hpp"

#include <gtest/gtest.h>

#include "tests/support/table.hpp"

namespace {

TEST(HeaderLines, StandAboveTheSharpestBend) {
  support::for_each_row("detection/header_lines.tsv", [](support::Row const& row) {
    auto const header_lines = [&row](bool const blanks) {
      return textio::detection::get_header_lines(row.counts(0), row.count(1), blanks);
    };
    EXPECT_EQ(header_lines(false), row.count(2));
    EXPECT_EQ(header_lines(true), row.count(3)) << "blanks";
  });
}

}  // namespace
