// SPDX-License-Identifier: MIT
//
// Appending records to a field array. Room is made before anything is changed, so that running
// out of memory never leaves fields behind that belong to no record.
#include "text_format_detection/model/field_array.hpp"

#include <algorithm>

namespace textio {

namespace {

template <class T>
void make_room(std::vector<T>& values, std::size_t const count) {
  std::size_t const needed = values.size() + count;
  if (needed > values.capacity()) {
    values.reserve(std::max(needed, 2 * values.capacity()));
  }
}

}  // namespace

FieldArray::~FieldArray() = default;

void FieldArray::reserve_record(std::size_t const num_fields) {
  make_room(fields_, num_fields);
  make_room(record_ends_, 1);
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
