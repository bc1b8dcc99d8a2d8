// SPDX-License-Identifier: MIT
//
// Decoding: the text, the bad bytes and their places must not depend on where blocks are cut.
#include <gtest/gtest.h>

#include "tests/text_import/made_data.hpp"
#include "text_import/source/decoder_internal.hpp"

namespace textimport {
namespace {

using namespace std::string_literals;

struct decoding {
  char const* encoding;
  std::string bytes;
  std::u16string text;
  std::uint64_t bad_bytes;
  std::vector<std::uint64_t> bad_offsets;
};

std::vector<decoding> decodings() {
  std::string const ascii(3000, 'x');
  std::u16string const wide(3000, u'x');
  return {
      {"UTF-8", "", u"", 0, {}},
      {"UTF-8", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z", u"a\u00E4\u20AC\U0001F600z", 0, {}},
      {"UTF-8",
       "a\xFF"
       "b",
       u"a\uFFFDb",
       1,
       {1}},
      {"UTF-8",
       "\xC0\xAF"
       "b",
       u"\uFFFD\uFFFDb",
       2,
       {0, 1}},
      {"UTF-8",
       "a\xE2\x82"
       "b",
       u"a\uFFFDb",
       2,
       {1}},
      {"UTF-8", "ab\xF0\x9F\x98", u"ab\uFFFD", 3, {2}},
      {"UTF-8", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", 3, {0, 1, 2}},
      {"UTF-8",
       "a\xEF\xBF\xBF"
       "b\0c"s,
       u"a\uFFFDb\0c"s,
       0,
       {}},
      {"UTF-8",
       ascii + "\xC3\xA4" + ascii + "\xFF" + ascii,
       wide + u"\u00E4" + wide + u"\uFFFD" + wide,
       1,
       {6002}},
      {"UTF-16LE",
       "a\0\x3D\xD8\x00\xDE"
       "b\0"s,
       u"a\U0001F600b",
       0,
       {}},
      {"UTF-16LE",
       "a\0\x3D\xD8"
       "b\0"s,
       u"a\uFFFDb",
       2,
       {2}},
      {"UTF-16BE", "\xD8\x3D\0b\xD8\x3D\xD8\x3D\xDE\x00"s, u"\uFFFDb\uFFFD\U0001F600", 4, {0, 4}},
      {"UTF-16LE",
       "\x3D\xD8"
       "b\0\x3D\xD8\x3D\xD8\x00\xDE"s,
       u"\uFFFDb\uFFFD\U0001F600",
       4,
       {0, 4}},
      {"UTF-16BE", "\0a\xDE\x00\0b\xD8\x3D"s, u"a\uFFFDb\uFFFD", 4, {2, 6}},
      {"UTF-16LE",
       "a\0\xFF\xFF"
       "b"s,
       u"a\uFFFD\uFFFD",
       1,
       {4}},
      {"UTF-32LE", "a\0\0\0\0\xF6\x01\0b\0\0\0"s, u"a\U0001F600b", 0, {}},
      {"UTF-32BE", "\0\x11\0\0\0\0\0a"s, u"\uFFFDa", 4, {0}},
      {"windows-1252", "\x80\xE4\xFF", u"\u20AC\u00E4\u00FF", 0, {}},
      {"ISO-8859-2", "\xB1\xE6", u"\u0105\u0107", 0, {}},
      {"KOI8-R", "\xC1\xD1", u"\u0430\u044F", 0, {}},
      {"Shift_JIS", "a\x83\x5C\x95\x5C,", u"a\u30BD\u8868,", 0, {}},
      {"Shift_JIS", "a\x83", u"a\uFFFD", 1, {1}},
      {"GB18030", "\xC4\xE3\x81\x30\x81\x30,", u"\u4F60\u0080,", 0, {}},
      {"Shift_JIS", "a\x83 ,", u"a\uFFFD ,", 1, {1}},
      {"GB18030", "a\x81\x30\x81,", u"a\uFFFD0\uFFFD,", 2, {1, 3}},
      {"GB18030",
       "a\xFF,\xFE\x80"
       "b",
       u"a\uFFFD,\u4723b",
       1,
       {1}},
      {"EUC-JP", "a\x8F\xB0,b", u"a\uFFFD\uFFFD,b", 2, {1, 2}},
      {"Big5", "a\xA4\xFF,", u"a\uFFFD\uF8F8,", 1, {1}},
      {"EUC-JP", "\xC6\xFC\x8F\xB0\xA1", u"\u65E5\u4E02", 0, {}},
      {"ISO-2022-JP", "a\x1B$BF|\x1B(Bb", u"a\u65E5b", 0, {}},
      {"IBM037", "\xC1\x6B\xF1", u"A,1", 0, {}},
      {"US-ASCII",
       "a\xE4"
       "b",
       u"a\uFFFDb",
       1,
       {1}},
  };
}

TEST(decoder, gives_the_same_in_blocks_of_any_size) {
  for (decoding const& row : decodings()) {
    for (std::size_t const block : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 1023U, 100000U}) {
      SCOPED_TRACE(row.encoding + (" " + testing::PrintToString(row.bytes.substr(0, 20))) + " in " +
                   std::to_string(block));
      decoder decoder(row.encoding, 0, false, "made");
      std::u16string text;
      for (std::size_t i = 0; i < row.bytes.size(); i += block) {
        decoder.decode(std::string_view(row.bytes).substr(i, block), false, text);
      }
      decoder.decode({}, true, text);
      EXPECT_TRUE(text == row.text) << testing::PrintToString(text.substr(0, 20));
      EXPECT_EQ(decoder.counts().bad_bytes, row.bad_bytes);
      EXPECT_EQ(decoder.counts().first_bad_offsets, row.bad_offsets);
    }
  }
}

TEST(decoder, gives_the_same_for_random_bytes_in_blocks_of_any_size) {
  std::uint32_t state = 1;
  auto const random = [&state](std::uint32_t const below) {
    state = state * 1664525 + 1013904223;
    return (state >> 16U) % below;
  };
  auto const decoded = [](char const* const encoding, std::string_view bytes,
                          std::size_t const block, decoding_counts& counts) {
    decoder decoder(encoding, 0, false, "made");
    std::u16string text;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(block, bytes.size()))) {
      decoder.decode(bytes.substr(0, block), false, text);
    }
    decoder.decode({}, true, text);
    counts = decoder.counts();
    return text;
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
      decoding_counts whole;
      std::u16string const text = decoded(encoding, bytes, 100, whole);
      for (std::size_t const block : {1U, 2U, 3U, 5U}) {
        decoding_counts counts;
        SCOPED_TRACE(encoding + (" " + testing::PrintToString(bytes)) + " in " +
                     std::to_string(block));
        EXPECT_TRUE(decoded(encoding, bytes, block, counts) == text);
        EXPECT_EQ(counts.bad_bytes, whole.bad_bytes);
        EXPECT_EQ(counts.first_bad_offsets, whole.first_bad_offsets);
        EXPECT_TRUE(whole.first_bad_offsets.empty() ||
                    whole.first_bad_offsets.back() < bytes.size());
      }
    }
  }
}

TEST(decoder, that_is_strict_stops_in_front_of_the_first_bad_byte) {
  for (decoding const& row : decodings()) {
    for (std::size_t const block : {1U, 3U, 100000U}) {
      SCOPED_TRACE(row.encoding + (" " + testing::PrintToString(row.bytes.substr(0, 20))));
      decoder decoder(row.encoding, 100, true, "made");
      std::u16string text;
      try {
        for (std::size_t i = 0; i < row.bytes.size(); i += block) {
          decoder.decode(std::string_view(row.bytes).substr(i, block), false, text);
        }
        decoder.decode({}, true, text);
        EXPECT_EQ(row.bad_bytes, 0U);
      } catch (import_error const& error) {
        EXPECT_EQ(error.kind(), import_error_kind::BadBytes);
        ASSERT_FALSE(row.bad_offsets.empty());
        EXPECT_EQ(error.byte_offset(), 100 + row.bad_offsets.front());
        EXPECT_NE(error.message().find(row.encoding), std::string::npos);
        EXPECT_TRUE(text == row.text.substr(0, text.size()));
        EXPECT_EQ(row.text[text.size()], u'\uFFFD');
      }
    }
  }
}

TEST(decoder, counts_all_bad_bytes_and_end_marks_but_places_the_first_few) {
  decoder decoder("UTF-8", 0, false, "made");
  std::u16string text;
  std::string bytes;
  for (int i = 0; i < 1000; ++i) {
    bytes += "\xFF,\xEF\xBF\xBF";
  }
  decoder.decode(bytes, true, text);
  EXPECT_EQ(decoder.counts().bad_bytes, 1000U);
  EXPECT_EQ(decoder.counts().replaced_end_marks, 1000U);
  EXPECT_EQ(decoder.counts().first_bad_offsets.size(), decoding_counts::max_bad_offsets);
  EXPECT_EQ(decoder.counts().first_bad_offsets.back(), 5 * (decoding_counts::max_bad_offsets - 1));
  EXPECT_EQ(text.find(u'\uFFFF'), std::u16string::npos);
}

}  // namespace
}  // namespace textimport
