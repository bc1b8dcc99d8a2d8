// SPDX-License-Identifier: MIT
//
// A run of UTF-16 text: Field looks at text that somebody else keeps alive, MutableField is a
// temporary whose bounds can be narrowed and which may keep a copy of its text.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "text_format_detection/export.hpp"

namespace textio {

/// A read-only view of UTF-16 text. Never owns it: the text must outlive the view.
/// Positions and lengths count code units. A moved-from field is empty, with a null pointer.
class TFD_API Field {
 public:
  Field() noexcept = default;

  Field(char16_t const* data, std::size_t length) noexcept : data_(data), length_(length) {}

  /// A field over the viewed text, and a view over the field's text: they convert both ways.
  Field(std::u16string_view text) noexcept  // NOLINT(google-explicit-constructor)
      : Field(text.data(), text.size()) {}

  Field(Field const& other) noexcept = default;

  Field(Field&& other) noexcept
      : data_(std::exchange(other.data_, nullptr)), length_(std::exchange(other.length_, 0)) {}

  Field& operator=(Field const& other) noexcept = default;
  Field& operator=(Field&& other) noexcept;
  virtual ~Field();

  [[nodiscard]] char16_t const* data() const noexcept { return data_; }

  [[nodiscard]] std::size_t length() const noexcept { return length_; }

  [[nodiscard]] bool empty() const noexcept { return length_ == 0; }

  [[nodiscard]] std::u16string_view view() const noexcept { return {data_, length_}; }

 protected:
  /// Looks at other text from now on.
  void reset(char16_t const* data, std::size_t length) noexcept;

 private:
  char16_t const* data_ = nullptr;
  std::size_t length_ = 0;
};

/// A field whose bounds can be narrowed and which can keep its own copy of the text.
/// Starts as a plain view. Not copied: what it owns has one owner.
class TFD_API MutableField : public Field {
 public:
  explicit MutableField(Field const& field) noexcept;
  MutableField(MutableField const&) = delete;
  MutableField(MutableField&&) = delete;
  MutableField& operator=(MutableField const&) = delete;
  MutableField& operator=(MutableField&&) = delete;
  ~MutableField() override;

  /// Drops `count` code units, at most all of them, from the start or from the end of the view.
  void remove_prefix(std::size_t count) noexcept;
  void remove_suffix(std::size_t count) noexcept;

  /// Copies the viewed text into a buffer of the field's own (on the heap above 32 code units), so
  /// that it no longer depends on anybody else's. Throws std::bad_alloc, and changes nothing then.
  void own();

  [[nodiscard]] bool owns_text() const noexcept { return owned_; }

 private:
  static constexpr std::size_t inline_capacity = 32;

  void release() noexcept;

  bool owned_ = false;
  std::array<char16_t, inline_capacity> inline_buffer_;  // written before it is read
  char16_t* heap_buffer_ = nullptr;
};

}  // namespace textio
