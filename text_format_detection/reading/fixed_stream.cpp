// SPDX-License-Identifier: MIT
//
// How much text does the stream hold, up to a limit? A coarse probe at the powers of two, from the
// limit down, and a bisection between the last two find out while no more of the stream is read
// than is needed. A longer text is cut at the last terminator below the limit.
#include "text_format_detection/reading/fixed_stream.hpp"

#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/platform/delimiter_matcher.hpp"

namespace textio {

namespace {

using ostrel::io::text::stream::TextStream;

constexpr std::size_t limit = 0x400000;
constexpr std::size_t buffer_step = 0x20000;

/// Makes `length` units available if the stream has them: the buffer grows in whole steps.
bool ensure(TextStream const& stream, std::size_t const length) {
  if (stream.buffered() < length && !stream.at_end()) {
    stream.resizeInternalBuffer(length / buffer_step * buffer_step + stream.buffered() +
                                buffer_step);
    stream.refill();
  }
  return stream.buffered() >= length;
}

/// Whether text stands at `index`: there is a unit, and it is not the end mark.
bool holds_text(TextStream const& stream, std::size_t const index) {
  return ensure(stream, index + 1) && stream.unit(index) != end_mark;
}

/// The largest power of two, from the limit down to 1, at which text stands; 0 without one.
std::size_t coarse_probe(TextStream const& stream) {
  std::size_t probe = limit;
  while (probe > 0 && !holds_text(stream, probe)) {
    probe /= 2;
  }
  return probe;
}

/// The length of a text that has text at index `low` and none at twice that (or none at 0).
std::size_t find_length(TextStream const& stream, std::size_t low) {
  std::size_t high = 2 * low;
  while (high - low >= 2) {
    std::size_t const middle = (low + high) / 2;
    if (holds_text(stream, middle)) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  while (holds_text(stream, low)) {
    ++low;
  }
  return low;
}

/// The length of the longest prefix within the limit that ends behind the first unit of a
/// terminator; 0 without one.
std::size_t cut_at_terminator(std::u16string_view const text,
                              std::vector<std::u16string> const& terminators) {
  auto const matcher = get_or_create_delim(terminators);
  std::size_t length = text.size();
  while (length > 0 && matcher->length_at(text, length - 1) == 0) {
    --length;
  }
  return length;
}

}  // namespace

Field get_fixed_stream(TextStream const& stream, std::vector<std::u16string> const& terminators) {
  std::size_t const probe = coarse_probe(stream);
  std::size_t const length = probe == limit ? cut_at_terminator({stream.data(), limit}, terminators)
                                            : find_length(stream, probe);
  return {stream.data(), length};
}

}  // namespace textio
