// SPDX-License-Identifier: MIT
//
// The pure functions on the numbers of fields of lines.
#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/strategies/field_counts_internal.hpp"

namespace {

using support::show;
using Counts = std::vector<std::size_t>;
namespace strategies = textio::strategies;

TEST(FieldCounts, LeadingLinesOfOneField) {
  for (auto const& [counts, expected] : support::Rows<Counts, std::size_t>{
           {Counts{}, 0}, {{1, 1, 3, 1}, 2}, {{0, 1}, 0}, {{1, 0, 1}, 1}, {{1, 1}, 2}, {{2}, 0}}) {
    EXPECT_EQ(strategies::count_single_field_lines(counts), expected) << show(counts);
  }
}

TEST(FieldCounts, Typical) {
  for (auto const& [counts, skip, expected] : support::Rows<Counts, std::size_t, std::size_t>{
           {{}, 0, 1},
           {{3, 3}, 2, 1},
           {{3, 3}, 3, 1},
           {{9, 9, 2}, 2, 2},
           {{0, 1, 1}, 0, 1},
           {{1, 4, 1}, 0, 4},
           {{5, 4, 3, 2}, 0, 3},
           {{6, 2, 5, 3, 4}, 0, 4},
           {{2, 1, 3, 0, 1}, 0, 2},
           // up to ten lines one line of several fields is enough, above a third must have them
           {{1, 1, 1, 1, 1, 1, 1, 1, 1, 7}, 0, 7},
           {{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7}, 0, 1},
           {{0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7}, 0, 7},
           {{1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 4}, 0, 1},
           {{1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 4, 5}, 0, 3},
           {{1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 4}, 0, 3},
           {{1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 3, 4}, 1, 3},
       }) {
    EXPECT_EQ(strategies::typical_field_count(counts, skip), expected) << show(counts);
  }
}

TEST(FieldCounts, Deviations) {
  for (auto const& [counts, typical, expected] :
       support::Rows<Counts, std::size_t, Counts>{{{1, 5, 5, 5}, 5, {4, 0, 0, 0}},
                                                  {{2, 0, 4, 4, 9}, 4, {2, 0, 0}},
                                                  {{9, 4, 0, 4, 0, 1}, 4, {5, 0, 0}},
                                                  {{3, 3}, 4, {}},
                                                  {Counts{}, 4, Counts{}}}) {
    EXPECT_EQ(strategies::field_count_deviations(counts, typical), expected) << show(counts);
  }
}

TEST(FieldCounts, ToLineIndex) {
  for (auto const& [h, empty_lines, counts, expected] :
       support::Rows<std::size_t, Counts, Counts, std::size_t>{
           {1, {}, {2, 3}, 1},
           {0, {0}, {0, 3}, 1},
           {1, {1}, {2, 0, 3}, 2},
           {1, {2}, {2, 3, 0}, 1},
           {1, {1, 2, 4}, {2, 0, 0, 3, 0, 3}, 3},
           {1, {0, 2}, {0, 2, 0, 2}, 3},
           {0, {}, {1, 1, 2}, 2},
           {1, {3}, {2, 1, 1, 0, 1}, 5},  // runs off the end
           {7, {}, {2, 2}, 7},
           {textio::unknown_count, {0}, {0, 2}, textio::unknown_count}}) {
    EXPECT_EQ(strategies::to_line_index(h, empty_lines, counts), expected) << show(counts);
  }
}

}  // namespace
