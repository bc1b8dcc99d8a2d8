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
  LineScanner(parser::LineRecordReader const& reader, LineEndings const& line_endings,
              std::u16string_view const text)
      : reader_(reader),
        line_endings_(line_endings),
        text_(text),
        stops_(text, reader.stop_characters()) {}

  [[nodiscard]] std::u16string_view text() const noexcept { return text_; }

  /// Scans the record at `start`: at most one field, the line without its ending.
  void scan(std::size_t const start, RecordStore& record) {
    record.begin(start);
    std::size_t const end = find_value_end(start);
    std::size_t const ending = is_value_end(end) ? 0 : line_endings_.length_at(text_, end);
    record.occupied = end + ending - start;
    record.ends_text = ending != 0 && model::at_end(text_, end + ending);
    if (end > start || reader_.reads_empty_values()) {
      record.add_field(start, end);
    }
  }

  /// Lines have no delimiters to be ignored.
  [[nodiscard]] static std::size_t skip_ignored_delimiters(std::size_t const pos) noexcept {
    return pos;
  }

 private:
  [[nodiscard]] bool is_value_end(std::size_t const pos) const {
    return reader_.value_ends().length_at(text_, pos) != 0;
  }

  [[nodiscard]] std::size_t find_value_end(std::size_t const start) {
    std::size_t pos = stops_.find(start);
    while (!model::at_end(text_, pos) && !is_value_end(pos) &&
           line_endings_.length_at(text_, pos) == 0) {
      pos = stops_.find(pos + 1);
    }
    return pos;
  }

  parser::LineRecordReader const& reader_;
  LineEndings const& line_endings_;
  std::u16string_view text_;
  model::UnitSearch stops_;
};

/// Calls `use` with a scanner of the text, for the reader's matcher.
template <class Use>
auto with_scanner(parser::LineRecordReader const& reader, std::u16string_view const text, Use use) {
  return std::visit(
      [&](auto const& line_endings) { return use(LineScanner(reader, line_endings, text)); },
      reader.line_endings().mode());
}

}  // namespace textio::reading
