// SPDX-License-Identifier: MIT
//
// How much of a stream is one block, around the limit of a block and with a source that delivers in
// pieces.
#include "text_format_detection/reading/fixed_stream.hpp"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/stream.hpp"
#include "tests/support/text.hpp"

namespace {

using ostrel::io::text::stream::TextStream;
using textio::get_fixed_stream;
using Strings = std::vector<std::u16string>;

constexpr std::size_t limit = 0x400000;
constexpr std::size_t step = 0x20000;
constexpr std::size_t piece = 100'003;

struct Put {
  std::size_t position;
  std::u16string_view text;
};

/// A text of x, with other texts put over it.
std::u16string make_text(std::size_t const length, std::vector<Put> const& puts = {}) {
  std::u16string text(length, u'x');
  for (auto const& [position, put] : puts) {
    text.replace(position, put.size(), put);
  }
  return text;
}

TEST(FixedStream, AShortTextIsOneBlock) {
  for (std::size_t const length :
       {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{6},
        std::size_t{1000}, step - 1, step, step + 1, limit / 2, limit / 2 + 1, limit - 1, limit}) {
    TextStream const stream = support::make_stream(make_text(length), piece);
    EXPECT_EQ(get_fixed_stream(stream, {u"x"}).length(), length);
  }
  // ends at the end mark that the probes meet
  TextStream const stream = support::make_stream(make_text(100, {{64, u"\uFFFF"}}), 7);
  EXPECT_EQ(get_fixed_stream(stream, {u"x"}).length(), 64U);
}

TEST(FixedStream, ALongTextIsCutAtATerminator) {
  for (auto const& [puts, terminators, expected] :
       support::Rows<std::vector<Put>, Strings, std::size_t>{
           {{}, {u"\n"}, 0},
           {{}, {}, 0},
           {{{100, u"\n"}, {limit, u"\n"}}, {u"\n"}, 101},
           {{{0, u"\n"}}, {u"\n"}, 1},
           {{{limit - 1, u"\n"}}, {u"\n"}, limit},
           {{{500, u"\r\n"}}, {u"\r\n"}, 501},
           {{{500, u"\r\n"}}, {u"\r\n", u"\n", u""}, 502},
           // begins within the limit and would end behind it
           {{{500, u"\r\n"}, {limit - 1, u"\r\n"}}, {u"\r\n"}, 501},
           {{{limit - 2, u"\r\n"}}, {u"\r\n"}, limit - 1},
           {{{500, u"ab"}, {900, u"a"}}, {u"abc", u"ab"}, 501}}) {
    TextStream const stream = support::make_stream(make_text(limit + 1, puts), piece);
    EXPECT_EQ(get_fixed_stream(stream, terminators).length(), expected)
        << (puts.empty() ? "" : support::show(puts.front().text)) << ", expected " << expected;
  }
}

TEST(FixedStream, BlockAfterBlock) {
  std::u16string const text = make_text(2 * limit, {{limit - 5, u"\n"}, {limit + 7, u"\n"}});
  TextStream stream = support::make_stream(text, piece);
  textio::Field const first = get_fixed_stream(stream, {u"\n"});
  EXPECT_EQ(first.length(), limit - 4);
  EXPECT_EQ(first.data(), stream.data());  // the position has not moved
  // grown by whole steps: the limit and one unit, rounded down, and a step
  EXPECT_EQ(stream.buffered(), limit + step);
  stream.advance(first.length());
  textio::Field const second = get_fixed_stream(stream, {u"\n"});
  EXPECT_EQ(second.length(), 12U);
  EXPECT_EQ(support::show(second.view()), "xxxxxxxxxxx\\n");
  stream.advance(second.length());
  EXPECT_EQ(get_fixed_stream(stream, {u"\n"}).length(), text.size() - (limit + 8));
}

TEST(FixedStream, ErrorsOfTheSourcePass) {
  TextStream const stream(
      [](char16_t*, std::size_t) -> std::size_t { throw std::runtime_error("broken source"); });
  EXPECT_THROW((void)get_fixed_stream(stream, {u"\n"}), std::runtime_error);
}

}  // namespace
