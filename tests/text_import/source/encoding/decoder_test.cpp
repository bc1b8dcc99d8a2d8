// SPDX-License-Identifier: MIT
//
// Decoding: the text, the bad bytes and their places must not depend on where blocks are cut.
#include <optional>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/text_import/made_data.hpp"
#include "tests/text_import/tables.hpp"
#include "text_import/source/encoding/decoder_internal.hpp"

namespace textimport {
namespace {

struct Decoding {
  std::u16string text;
  DecodingCounts counts;
  std::optional<std::uint64_t> bad_byte;  // where a strict decoder stopped
};

Decoding decoded(std::string const& encoding, std::string_view bytes, std::size_t const block,
                 bool const strict = false) {
  Decoding result;
  Decoder decoder(encoding, 0, strict, "made");
  try {
    for (; !bytes.empty(); bytes.remove_prefix(std::min(block, bytes.size()))) {
      decoder.decode(bytes.substr(0, block), false, result.text);
    }
    decoder.decode({}, true, result.text);
  } catch (ImportError const& error) {
    EXPECT_EQ(error.kind(), ImportErrorKind::BadBytes);
    result.bad_byte = error.byte_offset();
  }
  result.counts = decoder.counts();
  return result;
}

TEST(decoder, gives_the_same_in_blocks_of_any_size) {
  made::for_each_row("source/encoding/decoding.tsv", [&](made::cells const& row) {
    std::u16string const text = made::utf16(row[2]);
    std::vector<std::uint64_t> bad_offsets;
    std::istringstream offsets(row[4]);
    for (std::uint64_t offset = 0; offsets >> offset;) {
      bad_offsets.push_back(offset);
    }
    for (std::size_t const block : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 1000U}) {
      SCOPED_TRACE(row[0] + " " + row[2] + " in blocks of " + std::to_string(block));
      Decoding const read = decoded(row[0], row[1], block);
      EXPECT_TRUE(read.text == text) << testing::PrintToString(read.text);
      EXPECT_EQ(std::to_string(read.counts.bad_bytes), row[3]);
      EXPECT_EQ(read.counts.first_bad_offsets, bad_offsets);
      Decoding const strict = decoded(row[0], row[1], block, true);
      ASSERT_EQ(strict.bad_byte.has_value(), !bad_offsets.empty());
      EXPECT_TRUE(text.starts_with(strict.text));
      if (strict.bad_byte) {
        EXPECT_EQ(*strict.bad_byte, bad_offsets.front());
        EXPECT_EQ(text[strict.text.size()], u'\uFFFD');
      }
    }
  });
}

TEST(decoder, gives_the_same_for_random_bytes_in_blocks_of_any_size) {
  std::uint32_t state = 1;
  auto const random = [&state](std::uint32_t const below) {
    state = state * 1664525 + 1013904223;
    return (state >> 16U) % below;
  };
  constexpr std::string_view often = "\x1B$(B,a0\n\x81\x8F\xA4\xB0\xC3\xD8\xDC\xE2\xF0\xFE\xFF";
  for (char const* const encoding :
       {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "Shift_JIS", "EUC-JP", "GB18030", "Big5",
        "Big5-HKSCS", "windows-949", "ISO-2022-JP", "ISO-2022-KR", "HZ-GB-2312", "UTF-7"}) {
    for (int round = 0; round < 300; ++round) {
      std::string bytes;
      for (std::uint32_t i = random(14); i != 0; --i) {
        bytes.push_back(random(3) == 0 ? static_cast<char>(random(256))
                                       : often[random(often.size())]);
      }
      Decoding const whole = decoded(encoding, bytes, 100);
      for (std::size_t const block : {1U, 2U, 3U, 5U}) {
        Decoding const cut = decoded(encoding, bytes, block);
        SCOPED_TRACE(encoding + (" " + testing::PrintToString(bytes)));
        EXPECT_TRUE(cut.text == whole.text && cut.counts.bad_bytes == whole.counts.bad_bytes);
        EXPECT_EQ(cut.counts.first_bad_offsets, whole.counts.first_bad_offsets);
      }
    }
  }
}

TEST(decoder, counts_all_bad_bytes_and_end_marks_but_places_the_first_few) {
  Decoder decoder("UTF-8", 0, false, "made");
  std::u16string text;
  std::string bytes;
  for (int i = 0; i < 1000; ++i) {
    bytes += "\xFF,\xEF\xBF\xBF";
  }
  decoder.decode(bytes, true, text);
  EXPECT_EQ(decoder.counts().bad_bytes, 1000U);
  EXPECT_EQ(decoder.counts().replaced_end_marks, 1000U);
  EXPECT_EQ(decoder.counts().first_bad_offsets.size(), DecodingCounts::max_bad_offsets);
  EXPECT_EQ(decoder.counts().first_bad_offsets.back(), 5 * (DecodingCounts::max_bad_offsets - 1));
  EXPECT_EQ(text.find(u'\uFFFF'), std::u16string::npos);
}

}  // namespace
}  // namespace textimport
