// SPDX-License-Identifier: MIT
//
// The pure functions on the numbers of fields of lines.
#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "text_format_detection/strategies/field_counts_internal.hpp"

namespace {

using Counts = std::vector<std::size_t>;
namespace strategies = textio::strategies;

TEST(FieldCounts, FunctionsOnThem) {
  support::for_each_row("strategies/field_counts.tsv", [](support::Row const& row) {
    std::string const& function = row.cells.at(0);
    Counts const counts = row.counts(1);
    if (function == "leading") {
      EXPECT_EQ(strategies::count_single_field_lines(counts), row.count(2));
    } else if (function == "typical") {
      EXPECT_EQ(strategies::typical_field_count(counts, row.count(2)), row.count(3));
    } else if (function == "deviations") {
      EXPECT_EQ(strategies::field_count_deviations(counts, row.count(2)), row.counts(3));
    } else {
      EXPECT_EQ(function, "line_index");
      EXPECT_EQ(strategies::to_line_index(row.count(3), row.counts(2), counts), row.count(4));
    }
  });
}

}  // namespace
