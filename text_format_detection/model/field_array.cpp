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

void FieldArray::reserve_record(std::size_t const num_fields) {
  if (num_fields > fields_.capacity() - fields_.size()) {
    fields_.reserve(larger_capacity(num_fields));
  }
  if (record_ends_.size() == record_ends_.capacity()) {
    record_ends_.reserve(2 * record_ends_.size() + 1);
  }
}

/// Room for as many fields a record as so far, in all the records for which there is room; but at
/// least twice and at most four times the room there was, or what `num_fields` more take.
std::size_t FieldArray::larger_capacity(std::size_t const num_fields) const noexcept {
  std::size_t const needed = fields_.size() + num_fields;
  std::size_t const expected = needed / (num_records() + 1) * record_ends_.capacity();
  std::size_t const room = fields_.capacity();
  return std::max(needed, std::clamp(expected, 2 * room, 4 * room));
}

void FieldArray::append_record(std::span<Field const> const fields) {
  reserve_record(fields.size());
  fields_.insert(fields_.end(), fields.begin(), fields.end());
  record_ends_.push_back(fields_.size());
}

void FieldArray::append_record(char16_t const* const text,
                               std::span<FieldBounds const> const bounds) {
  reserve_record(bounds.size());
  for (FieldBounds const& field : bounds) {
    fields_.emplace_back(text + field.start, field.end - field.start);
  }
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
