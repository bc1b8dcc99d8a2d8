// SPDX-License-Identifier: MIT
//
// get_fixed_stream over a stream that delivers in pieces. One input in sixteen is repeated until it
// is longer than the largest block.
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "tests/support/stream.hpp"
#include "text_format_detection/reading/fixed_stream.hpp"

using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  constexpr std::size_t limit = 0x400000;
  fuzz::Input in(data, size);
  std::size_t const piece = 1 + (std::size_t{in.byte()} << in.below(16));
  std::size_t const passed = in.byte();
  bool const repeat = in.below(16) == 1;
  std::vector<std::u16string> const terminators =
      in.flag() ? in.strings() : std::vector<std::u16string>{u"\r\n", u"\n", u"\r"};
  std::u16string text = in.text();
  while (repeat && !text.empty() && text.size() < limit + 2 + passed) {
    text += text;
  }

  auto stream = support::make_stream(text, std::max<std::size_t>(piece, text.size() / 1000));
  stream.resizeInternalBuffer(passed);
  stream.refill();
  stream.advance(passed);
  text.erase(0, passed);
  std::u16string const block(textio::get_fixed_stream(stream, terminators).view());
  require(text.starts_with(block), "a block is the text from the current position on");
  require(textio::get_fixed_stream(stream, terminators).view() == block, "the same block again");
  auto whole = support::make_stream(text, limit + 2);
  require(textio::get_fixed_stream(whole, terminators).view() == block,
          "the pieces have no influence");
  if (text.find(textio::end_mark) != std::u16string::npos) {
    return 0;
  }
  if (text.size() <= limit) {
    require(block.size() == text.size(), "a short text is one block");
    return 0;
  }
  std::size_t expected = 0;  // behind the first unit of the last terminator within the limit
  for (std::u16string const& terminator : terminators) {
    std::size_t const found =
        terminator.empty() ? std::u16string::npos
                           : text.rfind(terminator, limit - std::min(limit, terminator.size()));
    expected = found == std::u16string::npos ? expected : std::max(expected, found + 1);
  }
  require(block.size() == expected, "a long text is cut behind a line");
  return 0;
}
