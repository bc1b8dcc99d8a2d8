// SPDX-License-Identifier: MIT
//
// A text that arrives in pieces, seen through a growing buffer.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <vector>

#include "text_format_detection/export.hpp"

namespace ostrel::io::text::stream {

/// Gives new elements no value, so that room for a text costs nothing before text is in it.
template <class Unit>
struct UnfilledRoom : std::allocator<Unit> {
  void construct(Unit* const room) noexcept { ::new (room) Unit; }
};

/// A stream of UTF-16 text: a buffer that starts at the current position and grows on demand.
///
/// Growing and refilling do not move the current position and are therefore const; they may move
/// the buffer, so that views into it end there. Neither copied nor moved: a copy would drain the
/// same source, and views stay with the stream that they were asked of. Not for several threads at
/// once.
class TFD_API TextStream {
 public:
  /// Writes up to `capacity` code units to `room`, which holds no values before, and returns how
  /// many; 0 means that the text has ended, and the source is not asked again. May deliver fewer
  /// than there is room for. What it throws passes through the stream, which keeps what was
  /// buffered before.
  using Source = std::function<std::size_t(char16_t* room, std::size_t capacity)>;

  explicit TextStream(Source source);
  TextStream(TextStream const&) = delete;
  TextStream(TextStream&&) = delete;
  TextStream& operator=(TextStream const&) = delete;
  TextStream& operator=(TextStream&&) = delete;
  ~TextStream() = default;

  /// The buffered text from the current position on, `buffered()` code units long. The slot behind
  /// the last one holds 0xFFFF. Valid until the stream grows, is refilled, advances or ends.
  [[nodiscard]] char16_t const* data() const noexcept;

  /// The number of code units that are buffered from the current position on.
  [[nodiscard]] std::size_t buffered() const noexcept;

  /// True once the source has delivered its last code unit.
  [[nodiscard]] bool at_end() const noexcept { return at_end_; }

  /// The code unit at `index` from the current position; 0xFFFF where none is buffered.
  [[nodiscard]] char16_t unit(std::size_t index) const noexcept;

  /// Grows the buffer to `length` code units from the current position, keeping what is buffered.
  /// Never shrinks it. Throws std::bad_alloc or std::length_error, and changes nothing then.
  void resizeInternalBuffer(std::size_t length) const;  // NOLINT(readability-identifier-naming)

  /// Fills the free room of the buffer and returns the number of code units delivered. The source
  /// is asked until the room is full or it delivers nothing; then the stream is at its end.
  std::size_t refill() const;

  /// Moves the current position forward by `length` code units, at most by what is buffered.
  void advance(std::size_t length);

 private:
  [[nodiscard]] std::size_t capacity() const noexcept;

  Source source_;
  // What was passed, the text, the end mark, and slots without a value.
  mutable std::vector<char16_t, UnfilledRoom<char16_t>> buffer_;
  mutable std::size_t end_ = 0;  // behind the last buffered unit, in the buffer
  mutable bool at_end_ = false;
  std::size_t start_ = 0;  // the current position, in the buffer
};

}  // namespace ostrel::io::text::stream
