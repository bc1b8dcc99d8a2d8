// SPDX-License-Identifier: MIT
//
// The stream's buffer. Text that was passed stays in front of the current position until that
// reaches the middle of the buffer; the last slot is never filled, so that an end mark always
// follows.
#include "text_format_detection/platform/text_stream.hpp"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "text_format_detection/model/options.hpp"

namespace ostrel::io::text::stream {

TextStream::TextStream(Source source) : source_(std::move(source)), buffer_(1, textio::end_mark) {}

char16_t const* TextStream::data() const noexcept {
  return buffer_.data() + start_;
}

std::size_t TextStream::buffered() const noexcept {
  return end_ - start_;
}

std::size_t TextStream::capacity() const noexcept {
  return buffer_.size() - 1 - start_;
}

char16_t TextStream::unit(std::size_t const index) const noexcept {
  return index < buffered() ? data()[index] : textio::end_mark;
}

void TextStream::resizeInternalBuffer(std::size_t const length) const {
  if (length <= capacity()) {
    return;
  }
  if (length > buffer_.max_size() - 1 - start_) {
    throw std::length_error("TextStream: the buffer cannot grow to the requested length");
  }
  std::size_t const size = start_ + length + 1;
  if (size > buffer_.capacity()) {
    decltype(buffer_) larger;
    larger.reserve(std::max(size, std::min(2 * buffer_.size(), buffer_.max_size())));
    larger.resize(end_ + 1);
    std::copy_n(buffer_.data(), end_ + 1, larger.data());  // not the slots without a value
    buffer_ = std::move(larger);
  }
  buffer_.resize(size);
}

std::size_t TextStream::refill() const {
  std::size_t const before = end_;
  try {
    while (!at_end_ && end_ + 1 < buffer_.size()) {
      std::size_t const room = buffer_.size() - 1 - end_;
      std::size_t const delivered = std::min(source_(buffer_.data() + end_, room), room);
      end_ += delivered;
      at_end_ = delivered == 0;
    }
  } catch (...) {
    buffer_[end_] = textio::end_mark;  // the source may have written there before it failed
    throw;
  }
  buffer_[end_] = textio::end_mark;
  return end_ - before;
}

void TextStream::advance(std::size_t const length) {
  start_ += std::min(length, buffered());
  if (start_ < buffer_.size() / 2) {
    return;
  }
  std::copy(data(), data() + buffered(), buffer_.begin());
  end_ = buffered();
  start_ = 0;
  buffer_[end_] = textio::end_mark;
}

}  // namespace ostrel::io::text::stream
