// SPDX-License-Identifier: MIT
//
// From the bounds of one scanned record to the fields of one stored record.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::reading {

/// What a scanner found out about one record. Positions are those of the text that it scans, whose
/// scans share one, so that its room is made once.
class RecordScan {
 public:
  /// What became of a fixed-width record that ends inside a column.
  enum class Status : unsigned char { Whole = 0, Missing = 1, FieldDropped = 2, RecordDropped = 3 };

  /// The number of code units of the record, its line ending included.
  std::size_t occupied = 0;
  /// Whether the record's line ending is the last thing in the text.
  bool ends_text = false;
  Status status = Status::Whole;

  /// Starts a new record at `start`.
  void restart(std::size_t const start) noexcept {
    start_ = start;
    fields_.clear();
    occupied = 0;
    ends_text = false;
    status = Status::Whole;
  }

  void add_field(std::size_t const start, std::size_t const end) {
    fields_.push_back({start, end});
  }

  void drop_last_field() noexcept { fields_.pop_back(); }

  [[nodiscard]] std::size_t start() const noexcept { return start_; }

  [[nodiscard]] std::span<FieldBounds const> fields() const noexcept { return fields_; }

  [[nodiscard]] std::size_t num_fields() const noexcept { return fields_.size(); }

  /// The end of the last field; the record's start without fields.
  [[nodiscard]] std::size_t last_end() const noexcept {
    return fields_.empty() ? start_ : fields_.back().end;
  }

 private:
  std::vector<FieldBounds> fields_;
  std::size_t start_ = 0;
};

/// Stores records in a field array.
class RecordStore {
 public:
  /// A record whose only field is `whitespace` is stored as an empty one. A record keeps
  /// `max_fields` fields.
  RecordStore(FieldArray& fields, std::u16string_view whitespace, std::size_t max_fields)
      : fields_(fields), whitespace_(whitespace), max_fields_(max_fields) {}

  /// Stores a record scanned in `text`. Fields are stored untrimmed: type inspection trims for
  /// itself, and the shape of a line is in its blanks.
  void store(std::u16string_view text, RecordScan const& scan);

  void store_empty() { fields_.append_empty_record(); }

  [[nodiscard]] std::size_t num_records() const noexcept { return fields_.num_records(); }

 private:
  [[nodiscard]] bool is_blank(std::u16string_view text, FieldBounds field) const;

  FieldArray& fields_;
  model::UnitSet whitespace_;
  std::size_t max_fields_;
};

}  // namespace textio::reading
