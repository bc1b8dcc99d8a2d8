// SPDX-License-Identifier: MIT
//
// Appending records to a field array. Room is made before anything is changed, so that running
// out of memory never leaves fields behind that belong to no record.
#include "text_format_detection/model/field_array.hpp"

#include <algorithm>

namespace textio {

FieldArray::~FieldArray() = default;

void FieldArray::reserve(std::size_t const num_records) {
  fields_.reserve(num_records);
  record_ends_.reserve(num_records);
}

/// Room for as many fields a record as so far, in all the records for which there is room; but at
/// least twice and at most four times the room there was, or what `num_fields` more take.
void FieldArray::reserve_record(std::size_t const num_fields) {
  std::size_t const needed = fields_.size() + num_fields;
  std::size_t const expected = needed / (num_records() + 1) * record_ends_.capacity();
  std::size_t const room = fields_.capacity();
  fields_.reserve(std::max(needed, std::clamp(expected, 2 * room, 4 * room)));
}

void FieldArray::append_record(std::span<Field const> const fields) {
  if (fields.size() > fields_.capacity() - fields_.size()) {
    reserve_record(fields.size());
  }
  record_ends_.push_back(fields_.size() + fields.size());
  fields_.insert(fields_.end(), fields.begin(), fields.end());
}

void FieldArray::append_record(char16_t const* const text,
                               std::span<FieldBounds const> const bounds) {
  if (bounds.size() > fields_.capacity() - fields_.size()) {
    reserve_record(bounds.size());
  }
  record_ends_.push_back(fields_.size() + bounds.size());
  for (FieldBounds const& field : bounds) {
    fields_.emplace_back(text + field.start, field.end - field.start);
  }
}

void FieldArray::drop_open_fields(std::size_t const count) noexcept {
  fields_.erase(fields_.end() - static_cast<std::ptrdiff_t>(open_fields().size() - count),
                fields_.end());
}

void FieldArray::end_record() {
  record_ends_.push_back(fields_.size());
}

void FieldArray::append_empty_record() {
  record_ends_.push_back(fields_.size());
}

void FieldArray::drop_trailing_empty_records() noexcept {
  while (!record_ends_.empty() && num_fields(num_records() - 1) == 0) {
    record_ends_.pop_back();
  }
}

}  // namespace textio
