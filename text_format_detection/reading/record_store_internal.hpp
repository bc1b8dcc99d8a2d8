// SPDX-License-Identifier: MIT
//
// Between a scanner, which finds the fields of one record after another, and the field array in
// which they are stored.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::reading {

/// The record that is being scanned, and the array that takes it in. Fields are written where they
/// will stay; a record that is not kept is taken back. Positions are those of the text.
class RecordStore {
 public:
  /// What became of a fixed-width record that ends inside a column.
  enum class Status : unsigned char { Whole = 0, Missing = 1, FieldDropped = 2, RecordDropped = 3 };

  /// A record whose only field is `whitespace` is stored as an empty one. A record keeps
  /// `max_fields` fields.
  RecordStore(FieldArray& fields, std::u16string_view text, std::u16string_view whitespace,
              std::size_t max_fields)
      : array_(fields), text_(text), whitespace_(whitespace), max_fields_(max_fields) {}

  RecordStore(RecordStore const&) = delete;
  RecordStore(RecordStore&&) = delete;
  RecordStore& operator=(RecordStore const&) = delete;
  RecordStore& operator=(RecordStore&&) = delete;

  /// Takes back the fields of a record whose scan ended with an error.
  ~RecordStore() { drop(); }

  /// The number of code units of the record, its line ending included.
  std::size_t occupied = 0;
  /// Whether the record's line ending is the last thing in the text.
  bool ends_text = false;
  Status status = Status::Whole;

  /// Makes room for this many records.
  void expect(std::size_t const num_records) { array_.reserve(num_records); }

  /// Starts a new record at `start`.
  void begin(std::size_t const start) noexcept {
    start_ = start;
    occupied = 0;
    ends_text = false;
    status = Status::Whole;
  }

  /// Fields are stored untrimmed: type inspection trims for itself, and the shape of a line is in
  /// its blanks.
  void add_field(std::size_t const start, std::size_t const end) {
    array_.add_field(text_.data() + start, end - start);
  }

  void drop_last_field() noexcept { array_.drop_open_fields(num_fields() - 1); }

  [[nodiscard]] std::size_t start() const noexcept { return start_; }

  [[nodiscard]] std::size_t num_fields() const noexcept { return array_.open_fields().size(); }

  [[nodiscard]] bool ends_with_empty_field() const noexcept {
    return num_fields() > 0 && array_.open_fields().back().empty();
  }

  /// Whether nothing but whitespace stands before the end of the record's last field.
  [[nodiscard]] bool is_empty() const noexcept;

  /// Stores the record.
  void keep();

  /// Takes the record back.
  void drop() noexcept { array_.drop_open_fields(0); }

  void store_empty() { array_.append_empty_record(); }

  [[nodiscard]] std::size_t num_records() const noexcept { return array_.num_records(); }

 private:
  FieldArray& array_;
  std::u16string_view text_;
  model::UnitSet whitespace_;
  std::size_t max_fields_;
  std::size_t start_ = 0;
};

}  // namespace textio::reading
