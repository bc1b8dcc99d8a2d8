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

  /// Makes room for this many records of one field each. Throws std::bad_alloc.
  void reserve(std::size_t num_records);

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
  void reserve_record(std::size_t num_fields);
  [[nodiscard]] std::size_t larger_capacity(std::size_t num_fields) const noexcept;

  std::vector<Field> fields_;
  std::vector<std::size_t> record_ends_;
};

}  // namespace textio
