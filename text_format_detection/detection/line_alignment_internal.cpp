// SPDX-License-Identifier: MIT
//
// The aligned-lines test and the trim of a header to the block of equal lines.
#include "text_format_detection/detection/line_alignment_internal.hpp"

#include <algorithm>

#include "text_format_detection/model/text_constants_internal.hpp"
#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::detection {

std::size_t line_length(FieldArray const& lines, std::size_t const r) noexcept {
  std::size_t length = 0;
  if (r < lines.num_records()) {
    for (Field const& field : lines.record(r)) {
      length += field.length();
    }
  }
  return length;
}

bool lines_are_aligned(FieldArray const& lines, std::size_t const header_lines) {
  if (header_lines >= lines.num_records()) {
    return false;
  }
  model::UnitSet const blanks(model::blanks);
  std::size_t shortest = unknown_count;
  std::size_t longest_text = 0;
  for (std::size_t r = header_lines; r < lines.num_records(); ++r) {
    std::size_t const length = line_length(lines, r);
    shortest = std::min(shortest, length);
    if (length == 0) {
      continue;
    }
    std::u16string_view const line = lines.record(r).front().view();
    longest_text = std::max(longest_text, model::length_without_trailing(line, blanks));
    if (shortest < longest_text) {
      return false;
    }
  }
  return true;
}

std::size_t equal_length_header(GenericStrategy const& strategy, FieldArray const& lines,
                                bool const detect_header_lines) {
  std::size_t const header_lines = strategy.header_lines();
  if (!detect_header_lines) {
    return header_lines;
  }
  std::size_t const data_length = line_length(lines, header_lines);
  std::size_t first_equal = std::min(header_lines, lines.num_records());
  // An empty line has length 0, so that it belongs to the block only when the data lines are empty.
  while (first_equal > 0 && line_length(lines, first_equal - 1) == data_length) {
    --first_equal;
  }
  return first_equal;
}

}  // namespace textio::detection
