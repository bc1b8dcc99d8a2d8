// SPDX-License-Identifier: MIT

#include "text_import/format/format_check_internal.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace textimport {

namespace {

/// Keeps the first of the values that are not as they should be.
class FirstFault {
 public:
  void unless(bool const is_right, std::string const& path, std::string_view const sentence) {
    if (!is_right && text_.empty()) {
      text_ = path + ": " + std::string(sentence);
    }
  }

  [[nodiscard]] std::string const& text() const noexcept { return text_; }

 private:
  std::string text_;
};

void check_filled(FirstFault& fault, std::vector<std::u16string> const& texts,
                  std::string const& path) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    fault.unless(!texts[i].empty(), path + "/" + std::to_string(i), "must not be empty");
  }
}

void check_layout(FirstFault& fault, LayoutFormat const& layout) {
  check_filled(fault, layout.delimiters, "/layout/delimiters");
  fault.unless(layout.layout != Layout::Delimited || !layout.delimiters.empty(),
               "/layout/delimiters", "a delimited layout has at least one");
  for (std::size_t i = 0; i < layout.widths.size(); ++i) {
    fault.unless(layout.widths[i] > 0, "/layout/widths/" + std::to_string(i),
                 "a column is at least 1 wide");
  }
  fault.unless(layout.layout != Layout::FixedWidth || !layout.widths.empty(), "/layout/widths",
               "a fixed-width layout has at least one");
}

void check_marks(FirstFault& fault, char16_t const decimal, char16_t const thousands,
                 std::string const& path) {
  fault.unless(decimal == 0 || decimal != thousands, path, "is the decimal mark too");
}

void check_lines(FirstFault& fault, Region const& region) {
  fault.unless(!region.end_line || *region.end_line >= region.first_line, "/region/end_line",
               "stands before the first line");
  fault.unless(region.table < region.num_tables, "/region/table", "there are not that many tables");
  auto const check = [&](std::vector<std::size_t> const& lines, char const* const path) {
    auto const does_not_rise = std::ranges::adjacent_find(lines, std::ranges::greater_equal());
    fault.unless(does_not_rise == lines.end(), path, "line numbers ascend");
  };
  check(region.name_lines, "/region/name_lines");
  check(region.group_lines, "/region/group_lines");
  check(region.total_lines, "/region/total_lines");
  check(region.other_lines, "/region/other_lines");
}

void check_column(FirstFault& fault, Column const& column, bool const is_last,
                  std::string const& path) {
  auto const check = [&](std::optional<Extent> const& extent, char const* const name) {
    fault.unless(!extent || extent->begin <= extent->end, path + name, "ends before it begins");
  };
  check(column.code_units, "/code_units");
  check(column.characters, "/characters");
  check(column.bytes, "/bytes");
  check_marks(fault, column.numbers.decimal_mark, column.numbers.thousands_mark,
              path + "/numbers/thousands_mark");
  fault.unless(is_last || !column.is_rest_of_line, path + "/is_rest_of_line",
               "only the last column takes the rest of the line");
}

}  // namespace

std::string impossible_value(Format const& format) {
  FirstFault fault;
  check_filled(fault, format.source.line_endings, "/source/line_endings");
  fault.unless(!format.source.line_endings.empty(), "/source/line_endings",
               "something must end a line");
  check_layout(fault, format.layout);
  fault.unless(format.quoting.escape_kind != QuoteEscape::Character || format.quoting.escape != 0,
               "/quoting/escape", "escape_kind \"character\" needs a character");
  check_filled(fault, format.comments.markers, "/comments/markers");
  fault.unless(format.comments.markers.size() <= 2, "/comments/markers",
               "there are at most two: the start and the end of a comment");
  check_marks(fault, format.marks.decimal_mark, format.marks.thousands_mark,
              "/marks/thousands_mark");
  check_lines(fault, format.region);
  for (std::size_t i = 0; i < format.columns.size(); ++i) {
    check_column(fault, format.columns[i], i + 1 == format.columns.size(),
                 "/columns/" + std::to_string(i));
  }
  return fault.text();
}

}  // namespace textimport
