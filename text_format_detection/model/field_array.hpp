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

  /// Every field, in text order.
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

  /// Makes room for this many records of one field each. Throws std::bad_alloc.
  void reserve(std::size_t num_records);

  /// Appends one record with these fields, or one without any. `fields` must not lie in this
  /// array. Throws std::bad_alloc, and changes nothing then.
  void append_record(std::span<Field const> fields);
  void append_empty_record();

  /// Adds a field to an open record, which stands behind the others until end_record() makes it
  /// one of them. Throws std::bad_alloc, and changes nothing then.
  void add_field(char16_t const* const data, std::size_t const length) {
    if (fields_.size() == fields_.capacity()) {
      make_room(1);
    }
    fields_.emplace_back(data, length);
  }

  /// The fields of the open record.
  [[nodiscard]] std::span<Field const> open_fields() const noexcept {
    return std::span<Field const>(fields_).subspan(record_start(num_records()));
  }

  /// Drops the fields of the open record but the first `count`, of which there have to be as many.
  void drop_open_fields(std::size_t count) noexcept;

  /// Ends the open record. Throws std::bad_alloc; the record is open still then.
  void end_record();

  /// Removes the records without fields that stand behind the last record with fields.
  void drop_trailing_empty_records() noexcept;

 private:
  void make_room(std::size_t num_fields);

  std::vector<Field> fields_;
  std::vector<std::size_t> record_ends_;
};

}  // namespace textio
