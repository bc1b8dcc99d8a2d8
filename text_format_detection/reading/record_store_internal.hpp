// SPDX-License-Identifier: MIT
//
// From the bounds of one scanned record to the fields of one stored record.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::reading {

/// What a scanner found out about one record. Positions are relative to the record's start.
struct RecordScan {
  /// What became of a fixed-width record that ends inside a column.
  enum class Status : unsigned char { Whole = 0, Missing = 1, FieldDropped = 2, RecordDropped = 3 };

  /// One entry for each field.
  std::vector<FieldBounds> fields;
  /// The number of code units of the record, its line ending included.
  std::size_t occupied = 0;
  /// Whether the record's line ending is the last thing in the text.
  bool ends_text = false;
  Status status = Status::Whole;

  void clear() noexcept {
    fields.clear();
    occupied = 0;
    ends_text = false;
    status = Status::Whole;
  }

  void add_field(std::size_t const start, std::size_t const end) { fields.push_back({start, end}); }

  [[nodiscard]] std::size_t num_fields() const noexcept { return fields.size(); }

  /// The end of the last field; 0 without fields.
  [[nodiscard]] std::size_t last_end() const noexcept {
    return fields.empty() ? 0 : fields.back().end;
  }
};

/// Stores records in a field array.
class RecordStore {
 public:
  /// A record whose only field is `whitespace` is stored as an empty one. A record keeps
  /// `max_fields` fields.
  RecordStore(FieldArray& fields, std::u16string_view whitespace, std::size_t max_fields)
      : fields_(fields), whitespace_(whitespace), max_fields_(max_fields) {}

  /// Stores a scanned record that begins where `text` does. Fields are stored untrimmed: type
  /// inspection trims for itself, and the shape of a line is in its blanks.
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
