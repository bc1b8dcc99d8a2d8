// SPDX-License-Identifier: MIT
//
// The stream's buffer: growing, refilling from a source that delivers in pieces, advancing.
#include "text_format_detection/platform/text_stream.hpp"

#include <stdexcept>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/stream.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/model/options.hpp"

namespace {

using ostrel::io::text::stream::TextStream;

// Two streams on one source would each get what the other did not.
static_assert(!std::is_copy_constructible_v<TextStream> && !std::is_copy_assignable_v<TextStream>);
static_assert(!std::is_move_constructible_v<TextStream> && !std::is_move_assignable_v<TextStream>);

/// What is buffered, and behind a bar what follows it: the end mark.
std::string buffered(TextStream const& stream) {
  return support::show({stream.data(), stream.buffered()}) + "|" +
         support::show({stream.data() + stream.buffered(), 1}) + (stream.at_end() ? " end" : "");
}

TEST(TextStream, RefillsUntilTheRoomIsFullOrTheTextEnds) {
  for (std::size_t const piece : {1U, 2U, 3U, 100U}) {
    SCOPED_TRACE(piece);
    TextStream stream = support::make_stream(u"abcdefgh", piece);
    EXPECT_EQ(buffered(stream), "|\\uFFFF");
    EXPECT_EQ(stream.refill(), 0U);
    stream.resizeInternalBuffer(5);
    EXPECT_EQ(stream.refill(), 5U);
    EXPECT_EQ(buffered(stream), "abcde|\\uFFFF");
    EXPECT_EQ(stream.refill(), 0U);
    stream.advance(2);
    EXPECT_EQ(buffered(stream), "cde|\\uFFFF");
    stream.resizeInternalBuffer(4);
    EXPECT_EQ(stream.refill(), 1U);
    stream.resizeInternalBuffer(2);  // never shrinks
    EXPECT_EQ(buffered(stream), "cdef|\\uFFFF");
    EXPECT_EQ(stream.unit(3), u'f');
    EXPECT_EQ(stream.unit(4), 0xFFFF);
    stream.advance(3);  // more than half of the buffer is behind: what is left moves to its start
    EXPECT_EQ(buffered(stream), "f|\\uFFFF");
    stream.resizeInternalBuffer(10);
    EXPECT_EQ(stream.refill(), 2U);
    EXPECT_EQ(buffered(stream), "fgh|\\uFFFF end");
    stream.advance(4);
    EXPECT_EQ(buffered(stream), "|\\uFFFF end");
  }
}

TEST(TextStream, KeepsItsTextWhenSomethingFails) {
  int calls = 0;
  TextStream stream([&calls](char16_t* const room, std::size_t const capacity) -> std::size_t {
    std::fill_n(room, capacity, u'x');  // scribbles over the end mark
    if (++calls == 2) {
      throw std::runtime_error("broken source");
    }
    return 2;
  });
  stream.resizeInternalBuffer(4);
  EXPECT_THROW(stream.refill(), std::runtime_error);
  EXPECT_EQ(buffered(stream), "xx|\\uFFFF");
  EXPECT_THROW(stream.resizeInternalBuffer(textio::unknown_count), std::length_error);
  EXPECT_EQ(buffered(stream), "xx|\\uFFFF");
  stream.refill();
  EXPECT_EQ(buffered(stream), "xxxx|\\uFFFF");
}

TEST(TextStream, TakesNoMoreFromASourceThanThereIsRoomFor) {
  TextStream const stream([](char16_t* const room, std::size_t const capacity) {
    std::fill_n(room, capacity, u'x');
    return capacity + 1;
  });
  stream.resizeInternalBuffer(3);
  EXPECT_EQ(stream.refill(), 3U);
  EXPECT_EQ(buffered(stream), "xxx|\\uFFFF");
}

}  // namespace
