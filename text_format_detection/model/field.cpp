// SPDX-License-Identifier: MIT
//
// Fields: views that never own their text, and the variant that may.
#include "text_format_detection/model/field.hpp"

#include <algorithm>
#include <utility>

namespace textio {

Field& Field::operator=(Field&& other) noexcept {
  char16_t const* const data = std::exchange(other.data_, nullptr);
  std::size_t const length = std::exchange(other.length_, 0);
  reset(data, length);
  return *this;
}

Field::~Field() = default;

void Field::reset(char16_t const* const data, std::size_t const length) noexcept {
  data_ = data;
  length_ = length;
}

// The inline buffer is left as it is: own() writes what is read from it.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
MutableField::MutableField(Field const& field) noexcept : Field(field.data(), field.length()) {}

MutableField::~MutableField() {
  release();
}

void MutableField::remove_prefix(std::size_t const count) noexcept {
  std::size_t const dropped = std::min(count, length());
  reset(data() + dropped, length() - dropped);
}

void MutableField::remove_suffix(std::size_t const count) noexcept {
  reset(data(), length() - std::min(count, length()));
}

void MutableField::own() {
  if (owned_) {
    return;
  }
  char16_t* buffer = inline_buffer_.data();
  if (length() > inline_capacity) {
    heap_buffer_ = new char16_t[length()];
    buffer = heap_buffer_;
  }
  std::copy_n(data(), length(), buffer);
  reset(buffer, length());
  owned_ = true;
}

void MutableField::release() noexcept {
  delete[] heap_buffer_;
}

}  // namespace textio
