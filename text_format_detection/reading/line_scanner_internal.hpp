// SPDX-License-Identifier: MIT
//
// The scan of one line as one field.
#pragma once

#include <cstddef>
#include <string_view>
#include <variant>

#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/model/unit_search_internal.hpp"
#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/reading/record_store_internal.hpp"

namespace textio::reading {

/// `LineEndings` is a mode of DelimiterMatcher.
template <class LineEndings>
class LineScanner {
 public:
  LineScanner(parser::LineRecordReader const& reader, LineEndings const& line_endings)
      : reader_(reader), line_endings_(line_endings), stops_(reader.stop_characters()) {}

  /// Scans the record at the start of `text`: at most one field, the line without its ending.
  void scan(std::u16string_view const text, RecordScan& scan) const {
    scan.clear();
    std::size_t const end = find_value_end(text);
    std::size_t const ending = is_value_end(text, end) ? 0 : line_endings_.length_at(text, end);
    scan.occupied = end + ending;
    scan.ends_text = ending != 0 && model::at_end(text, scan.occupied);
    if (end > 0 || reader_.reads_empty_values()) {
      scan.add_field(0, end);
    }
  }

  /// Lines have no delimiters to be ignored.
  [[nodiscard]] std::size_t skip_ignored_delimiters(std::u16string_view /*text*/,
                                                    std::size_t const pos) const {
    return pos;
  }

 private:
  [[nodiscard]] bool is_value_end(std::u16string_view const text, std::size_t const pos) const {
    return reader_.value_ends().length_at(text, pos) != 0;
  }

  [[nodiscard]] std::size_t find_value_end(std::u16string_view const text) const {
    std::size_t pos = stops_.find(text, 0);
    while (!model::at_end(text, pos) && !is_value_end(text, pos) &&
           line_endings_.length_at(text, pos) == 0) {
      pos = stops_.find(text, pos + 1);
    }
    return pos;
  }

  parser::LineRecordReader const& reader_;
  LineEndings const& line_endings_;
  model::UnitSearch stops_;
};

/// Calls `use` with the scanner for the reader's matcher.
template <class Use>
auto with_scanner(parser::LineRecordReader const& reader, Use use) {
  return std::visit(
      [&](auto const& line_endings) { return use(LineScanner(reader, line_endings)); },
      reader.line_endings().mode());
}

}  // namespace textio::reading
