// SPDX-License-Identifier: MIT
//
// The overlay of lines and what it shows.
//
//   the lines      Anna   12.5        the map    0000111000     1 where every line is blank
//                  Bo      3.1        columns    2 ("0000" and "000")
//                  Carl    7.0        widths     4, 6
#include "text_format_detection/detection/fixed_width_detection_internal.hpp"

#include <algorithm>

#include "text_format_detection/detection/line_alignment_internal.hpp"
#include "text_format_detection/strategies/field_counts_internal.hpp"

namespace textio::detection {

namespace {

/// The mean distance of the counts from their typical count.
double column_variation(std::vector<std::size_t> const& column_counts) {
  std::size_t const typical = strategies::typical_field_count(column_counts, 0);
  std::vector<std::size_t> distances(column_counts.size());
  std::transform(column_counts.begin(), column_counts.end(), distances.begin(),
                 [typical](std::size_t const n) { return strategies::distance(n, typical); });
  return strategies::mean_from(distances, 0);
}

}  // namespace

void BlankMap::overlay(std::u16string_view const line) {
  extend(line.size());
  for (std::size_t position = 0; position < line.size(); ++position) {
    if (line[position] != u' ' && blank_[position] != 0) {
      set_text(position);
    }
  }
}

void BlankMap::extend(std::size_t const length) {
  if (length <= blank_.size()) {
    return;
  }
  bool const starts_text = blank_.empty() || blank_.back() != 0;
  num_text_starts_ += static_cast<std::size_t>(starts_text);
  blank_.resize(length, 0);
}

void BlankMap::set_text(std::size_t const position) {
  blank_[position] = 0;
  bool const starts_text = position == 0 || blank_[position - 1] != 0;
  bool const joins_right = position + 1 < blank_.size() && blank_[position + 1] == 0;
  num_text_starts_ += static_cast<std::size_t>(starts_text);
  num_text_starts_ -= static_cast<std::size_t>(joins_right);
}

std::vector<std::size_t> BlankMap::column_widths() const {
  std::vector<std::size_t> widths;
  std::size_t previous = 0;
  for (std::size_t position = 1; position < blank_.size(); ++position) {
    if (blank_[position - 1] == 0 && blank_[position] != 0) {
      widths.push_back(position - previous);
      previous = position;
    }
  }
  if (blank_.size() != previous) {
    widths.push_back(blank_.size() - previous);
  }
  return widths;
}

FixedWidthLayout overlay_lines(FieldArray const& lines, std::size_t const header_lines) {
  BlankMap map(line_length(lines, header_lines));
  std::vector<std::size_t> column_counts;
  for (std::size_t r = header_lines; r < lines.num_records(); ++r) {
    if (line_length(lines, r) == 0) {
      column_counts.push_back(column_counts.empty() ? 0 : column_counts.back());
      continue;
    }
    map.overlay(lines.record(r).front().view());
    column_counts.push_back(map.num_columns());
  }
  std::size_t const num_columns = column_counts.empty() ? 1 : column_counts.back();
  return {num_columns, column_variation(column_counts), map.column_widths()};
}

}  // namespace textio::detection
