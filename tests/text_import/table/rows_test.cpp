// SPDX-License-Identifier: MIT
//
// Rows of lines that have more than delimiters and quotes.
#include "text_import/table/rows.hpp"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"

namespace textimport {
namespace {

using support::json;

Format format_of(std::string const& delimiter, json const& beside) {
  Format format;
  format.columns.resize(beside.value("rest", 1U));
  format.columns.back().is_rest_of_line = beside.contains("rest");
  format.layout.layout = delimiter == "blanks" ? Layout::SpaceAligned : Layout::Delimited;
  if (delimiter == "blanks") {
    format.layout.consecutive_delimiters = textio::enums::ConsecutiveDelimitersRule::Join;
    format.layout.leading_delimiters = textio::enums::LeadingDelimitersRule::Ignore;
    format.layout.trailing_delimiters = textio::enums::TrailingDelimitersRule::Ignore;
  } else {
    format.layout.delimiters = {support::to_utf16(delimiter)};
  }
  format.region.has_outer_bars = beside.contains("bars");
  format.region.has_rulers = beside.contains("rulers");
  format.quoting.behind_blanks = beside.contains("blanks_before_quotes");
  if (beside.contains("escape")) {
    format.quoting.escape_kind = QuoteEscape::Character;
    format.quoting.escape = support::to_utf16(beside["escape"].get<std::string>()).front();
  }
  if (beside.contains("end_comments")) {
    format.comments.at_line_ends = true;
    format.comments.markers = {support::to_utf16(beside["end_comments"].get<std::string>())};
  }
  return format;
}

std::string show(std::vector<Row> const& rows) {
  std::string shown;
  for (Row const& row : rows) {
    shown += shown.empty() ? "" : " ";
    for (std::size_t i = 0; i < row.size(); ++i) {
      shown += (i == 0 ? "" : "/");
      shown += support::show(row[i]);
    }
  }
  return shown;
}

TEST(rows, have_what_lines_have_beside) {
  support::for_each_row("text_import/table/rows.tsv", [](support::Row const& row) {
    Format const format = format_of(row.cells[1], row.value(2));
    EXPECT_EQ(support::show(row.text(3)), show(read_rows(format, row.text(0), 100)));
  });
}

}  // namespace
}  // namespace textimport
