// SPDX-License-Identifier: MIT
//
// How much of a stream is one block, around the limit of a block and with a source that delivers in
// pieces.
#include "text_format_detection/reading/fixed_stream.hpp"

#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/stream.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"

namespace {

using ostrel::io::text::stream::TextStream;
using textio::get_fixed_stream;

constexpr std::size_t limit = 0x400000;
constexpr std::size_t step = 0x20000;
constexpr std::size_t piece = 100'003;

/// A text of x, with other texts put over it: [[position, text] ...].
std::u16string make_text(std::size_t const length, support::json const& puts) {
  std::u16string text(length, u'x');
  for (support::json const& put : puts) {
    auto const over = support::value_of<std::u16string>(put.at(1));
    text.replace(put.at(0), over.size(), over);
  }
  return text;
}

TEST(FixedStream, AShortTextIsOneBlock) {
  for (std::size_t const length :
       {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{6},
        std::size_t{1000}, step - 1, step, step + 1, limit / 2, limit / 2 + 1, limit - 1, limit}) {
    TextStream const stream = support::make_stream(make_text(length, {}), piece);
    EXPECT_EQ(get_fixed_stream(stream, {u"x"}).length(), length);
  }
  // ends at the end mark that the probes meet
  TextStream const stream = support::make_stream(make_text(100, {{64, "\uFFFF"}}), 7);
  EXPECT_EQ(get_fixed_stream(stream, {u"x"}).length(), 64U);
}

TEST(FixedStream, ALongTextIsCutAtATerminator) {
  support::for_each_row("reading/blocks.tsv", [](support::Row const& row) {
    TextStream const stream = support::make_stream(make_text(limit + 1, row.value(0)), piece);
    auto const terminators = support::value_of<std::vector<std::u16string>>(row.value(1));
    EXPECT_EQ(get_fixed_stream(stream, terminators).length(), row.count(2));
  });
}

TEST(FixedStream, BlockAfterBlock) {
  std::u16string const text = make_text(2 * limit, {{limit - 5, "\n"}, {limit + 7, "\n"}});
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
