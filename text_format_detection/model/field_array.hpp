// SPDX-License-Identifier: MIT
//
// The fields of a text, record after record.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/field.hpp"

namespace textio {

namespace reading {
class RecordStore;
}

/// Where a field lies in a text: from one position up to, not including, another.
struct FieldBounds {
  std::size_t start;
  std::size_t end;
};

/// The fields of a sample, record after record.
///
/// `record_ends` has one entry for each stored record: the number of fields stored up to and
/// including it. Record r therefore owns fields[ends[r-1]] up to, not including, fields[ends[r]],
/// with 0 standing before the first entry; a record without fields repeats the previous total.
/// The fields are views into the text that was read, which the caller keeps alive.
class TFD_API FieldArray {
 public:
  FieldArray() noexcept = default;
  FieldArray(FieldArray const&) = default;
  FieldArray(FieldArray&&) noexcept = default;
  FieldArray& operator=(FieldArray const&) = default;
  FieldArray& operator=(FieldArray&&) noexcept = default;
  ~FieldArray();

  /// Every stored field, in text order.
  [[nodiscard]] std::vector<Field> const& fields() const noexcept { return fields_; }

  /// One running total for each stored record.
  [[nodiscard]] std::vector<std::size_t> const& record_ends() const noexcept {
    return record_ends_;
  }

  [[nodiscard]] std::size_t num_records() const noexcept { return record_ends_.size(); }

  /// The position in `fields` of the first field of record r; r may be one past the last.
  [[nodiscard]] std::size_t record_start(std::size_t const r) const noexcept {
    return r == 0 ? 0 : record_ends_[r - 1];
  }

  /// The number of fields of record r, which must exist.
  [[nodiscard]] std::size_t num_fields(std::size_t const r) const noexcept {
    return record_ends_[r] - record_start(r);
  }

  /// The fields of record r, which must exist.
  [[nodiscard]] std::span<Field const> record(std::size_t const r) const noexcept {
    return std::span<Field const>(fields_).subspan(record_start(r), num_fields(r));
  }

  /// Appends one record with these fields, or one without any. `fields` must not lie in this
  /// array. Throws std::bad_alloc, and changes nothing then.
  void append_record(std::span<Field const> fields);
  void append_empty_record();

  /// Appends one record whose fields lie in `text`. Throws std::bad_alloc, and changes nothing
  /// then.
  void append_record(char16_t const* text, std::span<FieldBounds const> bounds);

  /// Removes the records without fields that stand behind the last record with fields.
  void drop_trailing_empty_records() noexcept;

 private:
  // Reading adds fields one by one to an open record, which stands behind the others until it is
  // ended or its fields are dropped.
  friend class reading::RecordStore;

  TFD_LOCAL void reserve(std::size_t num_records);
  void reserve_record(std::size_t num_fields);

  void add_field(char16_t const* const data, std::size_t const length) {
    if (fields_.size() == fields_.capacity()) {
      reserve_record(1);
    }
    fields_.emplace_back(data, length);
  }

  [[nodiscard]] std::span<Field const> open_fields() const noexcept {
    return std::span<Field const>(fields_).subspan(record_start(num_records()));
  }

  /// Keeps the first `count` fields, of which there have to be as many.
  TFD_LOCAL void drop_open_fields(std::size_t count) noexcept;
  TFD_LOCAL void end_record();

  std::vector<Field> fields_;
  std::vector<std::size_t> record_ends_;
};

}  // namespace textio
