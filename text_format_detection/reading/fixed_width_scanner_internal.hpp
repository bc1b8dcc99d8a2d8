// SPDX-License-Identifier: MIT
//
// The scan of one fixed-width record: one field a column, as far as the line reaches. What the line
// holds behind the last column is one more field, unless it is blank.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <variant>

#include "text_format_detection/model/errors.hpp"
#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/model/unit_search_internal.hpp"
#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/reading/record_store_internal.hpp"

namespace textio::reading {

/// `LineEndings` is a mode of DelimiterMatcher.
template <class LineEndings>
class FixedWidthScanner {
 public:
  FixedWidthScanner(parser::FixedWidthRecordReader const& reader, LineEndings const& line_endings,
                    std::u16string_view const text)
      : options_(reader.options()),
        line_endings_(line_endings),
        text_(text),
        stops_(text, reader.stop_characters()),
        whitespace_(options_.whitespace) {}

  [[nodiscard]] std::u16string_view text() const noexcept { return text_; }

  /// Scans the record at `start`. Throws partial_field_error under the rule Error.
  void scan(std::size_t const start, RecordStore& record) {
    record.begin(start);
    std::size_t pos = start;
    for (std::size_t const width : options_.column_widths) {
      Column const column = cut_column(pos, width);
      if (column.ending != 0) {
        end_inside_column(pos, column, record);
        return;
      }
      record.add_field(pos, column.end);
      pos = column.end;
      if (finish_at(pos, record)) {
        return;
      }
    }
    scan_rest_of_line(pos, record);
  }

  /// Fixed-width records have no delimiters to be ignored.
  [[nodiscard]] static std::size_t skip_ignored_delimiters(std::size_t const pos) noexcept {
    return pos;
  }

 private:
  struct Column {
    std::size_t end;
    std::size_t ending;  // the length of the line ending that cuts the column short, or 0
  };

  /// Whether a line ending inside a column is part of the field.
  [[nodiscard]] bool wraps() const noexcept {
    return options_.partial_field_rule == enums::PartialFieldRule::Wrap ||
           options_.partial_field_rule > enums::PartialFieldRule::Error;
  }

  /// The column that begins at `pos`, cut at a line ending or at the end of the text.
  [[nodiscard]] Column cut_column(std::size_t pos, std::size_t const width) {
    std::size_t const limit = pos + std::min(width, text_.size() - pos);
    for (pos = stops_.find(pos); pos < limit && text_[pos] != end_mark;
         pos = stops_.find(pos + 1)) {
      std::size_t const ending = wraps() ? 0 : line_endings_.length_at(text_, pos);
      if (ending != 0) {
        return {pos, ending};
      }
    }
    return {std::min(pos, limit), 0};
  }

  /// The record's line ends inside the column that begins at `pos`.
  void end_inside_column(std::size_t const pos, Column const column, RecordStore& record) const {
    switch (options_.partial_field_rule) {
      case enums::PartialFieldRule::DropField:
        record.status = RecordStore::Status::FieldDropped;
        break;
      case enums::PartialFieldRule::DropRecord:
        record.status = RecordStore::Status::RecordDropped;
        break;
      case enums::PartialFieldRule::FillMissing:
        record.status = RecordStore::Status::Missing;
        break;
      case enums::PartialFieldRule::Error:
        throw parser::exception::partial_field_error(0, record.num_fields(), {}, u"\\n");
      case enums::PartialFieldRule::Keep:
      case enums::PartialFieldRule::Wrap:  // not asked: such columns are not cut
        record.add_field(pos, column.end);
        break;
    }
    record.occupied = column.end + column.ending - record.start();
  }

  /// Ends the record at `pos` if the line or the text ends there.
  [[nodiscard]] bool finish_at(std::size_t const pos, RecordStore& record) const {
    std::size_t const ending = line_endings_.length_at(text_, pos);
    if (ending == 0 && !model::at_end(text_, pos)) {
      return false;
    }
    record.occupied = pos + ending + end_of_text_length(pos) - record.start();
    return true;
  }

  void scan_rest_of_line(std::size_t const pos, RecordStore& record) {
    std::size_t end = stops_.find(pos);
    while (!finish_at(end, record)) {
      end = stops_.find(end + 1);
    }
    if (!model::consists_of(text_.substr(pos, end - pos), whitespace_)) {
      record.add_field(pos, end);
    }
  }

  /// What a record occupies behind the end of the text: one unit when the end mark itself is the
  /// line ending, which is what is read there.
  [[nodiscard]] std::size_t end_of_text_length(std::size_t const pos) const noexcept {
    if constexpr (std::is_same_v<LineEndings, DelimiterMatcher::SingleUnit>) {
      return pos == text_.size() && line_endings_.unit == end_mark ? 1 : 0;
    } else {
      return 0;
    }
  }

  parser::options const& options_;
  LineEndings const& line_endings_;
  std::u16string_view text_;
  model::UnitSearch stops_;
  model::UnitSet whitespace_;
};

/// Calls `use` with a scanner of the text, for the reader's matcher.
template <class Use>
auto with_scanner(parser::FixedWidthRecordReader const& reader, std::u16string_view const text,
                  Use use) {
  return std::visit(
      [&](auto const& line_endings) { return use(FixedWidthScanner(reader, line_endings, text)); },
      reader.line_endings().mode());
}

}  // namespace textio::reading
