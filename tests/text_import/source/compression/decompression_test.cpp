// SPDX-License-Identifier: MIT
//
// Packed data, whole and damaged in every way that a transfer damages them. The rule behind all
// tests: a text that is not the one that was packed is never answered without a word.
#include <gtest/gtest.h>

#include "tests/text_import/made_data.hpp"
#include "tests/text_import/tables.hpp"
#include "text_import/source/bytes/compression_marks_internal.hpp"
#include "text_import/source/compression/archive_library_internal.hpp"

namespace textimport {
namespace {

using made::Outcome;
using made::packed;
using made::read_all;

class PackedText : public testing::TestWithParam<char const*> {};

INSTANTIATE_TEST_SUITE_P(decompression, PackedText, testing::ValuesIn(made::packed_formats),
                         [](auto const& row) { return std::string(row.param); });

TEST_P(PackedText, is_the_text_again_in_blocks_of_any_size) {
  for (std::size_t const size :
       {std::size_t{0}, std::size_t{1}, std::size_t{5000}, std::size_t{300000}}) {
    std::string const text = size == 1 ? "x" : made::table_of(size);
    std::string const bytes = packed(GetParam(), text);
    EXPECT_EQ(compression_of(bytes), GetParam());
    for (std::size_t const block : {std::size_t{1}, std::size_t{7}, std::size_t{65536}}) {
      if (block == 1 && size > 10000) {
        continue;  // slow, and no other case
      }
      OpenOptions options;
      options.block_bytes = block;
      options.sample_bytes = 100000;
      Outcome const read = read_all(bytes, options);
      EXPECT_EQ(read.error, "") << read.message;
      EXPECT_EQ(read.findings.compression, GetParam());
      EXPECT_EQ(read.findings.goes_on, size > 100000);
      EXPECT_TRUE(read.whole == made::utf16(text)) << size << " bytes, blocks of " << block;
    }
  }
}

TEST_P(PackedText, cut_anywhere_is_a_prefix_and_never_silent) {
  std::string const text = made::table_of(3000);
  std::string const bytes = packed(GetParam(), text);
  std::string const format = GetParam();
  // What stands behind the text in a zip archive is its table of contents, which is not read.
  std::size_t const end = format == "zip" ? bytes.find("PK\x01\x02") : bytes.size();
  for (std::size_t length = 10; length < end; ++length) {
    Outcome const read = read_all(bytes.substr(0, length));
    EXPECT_EQ(read.error, "truncated-compression") << length << ": " << read.message;
    EXPECT_TRUE(made::utf16(text).starts_with(read.whole)) << length;
    EXPECT_EQ(read.is_open, !read.whole.empty()) << length;
    EXPECT_EQ(read.is_open, !read.findings.warnings.empty()) << length;
    EXPECT_EQ(read.error_byte, read.whole.size()) << length;
    EXPECT_TRUE(read.findings.no_line_end || read.sample.empty() || read.sample.back() == u'\n');
  }
}

class CheckedText : public PackedText {};

// The writer adds no checksum to zstd, so that nobody can notice there.
INSTANTIATE_TEST_SUITE_P(decompression, CheckedText,
                         testing::Values("gzip", "bzip2", "xz", "lz4", "zip"),
                         [](auto const& row) { return std::string(row.param); });

TEST_P(CheckedText, with_a_flipped_bit_is_never_another_text_in_silence) {
  std::string const format = GetParam();
  std::string const text = made::table_of(600);
  std::string const bytes = packed(format, text);
  std::size_t const end = format == "zip" ? bytes.find("PK\x01\x02") : bytes.size();
  std::size_t doubted = 0;
  for (std::size_t bit = 0; bit < end * 8; bit += 3) {
    std::string damaged = bytes;
    damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
    if (compression_of(damaged) != format || (format == "zip" && bit == 6 * 8 + 3)) {
      continue;  // no longer recognised, or read as the header of an empty member
    }
    Outcome const read = read_all(damaged);
    doubted += read.is_doubted() ? 1U : 0U;
    EXPECT_TRUE(read.is_doubted() || read.whole == made::utf16(text)) << "bit " << bit;
  }
  EXPECT_GT(doubted, end * 2) << "most bits matter";
}

TEST_P(PackedText, packed_once_more_is_refused) {
  for (char const* const outer : {"gzip", "bzip2", "xz", "zstd", "lz4", "zip"}) {
    Outcome const read = read_all(packed(outer, packed(GetParam(), made::table_of(5000))));
    EXPECT_EQ(read.error, "nested-compression") << outer << ": " << read.message;
    EXPECT_FALSE(read.is_open);
  }
}

TEST(gzip, compares_checksum_and_length) {
  std::string const text = made::table_of(3000);
  for (std::size_t const behind_end : {8U, 4U}) {  // the checksum, the length
    std::string bytes = packed("gzip", text);
    bytes[bytes.size() - behind_end] = static_cast<char>(~bytes[bytes.size() - behind_end]);
    Outcome const read = read_all(bytes);
    EXPECT_TRUE(read.whole == made::utf16(text) && read.sample == read.whole);
    EXPECT_FALSE(read.findings.goes_on);
    EXPECT_EQ(read.findings.warnings.size(), 1U);
    EXPECT_EQ(read.error, "wrong-checksum");
  }
}

TEST(gzip, reads_what_may_follow_a_member) {
  std::string const one = packed("gzip", "a,b\n");
  std::string const two = packed("gzip", "c,d\n");

  struct Row {
    std::string bytes;
    char16_t const* text;
    std::size_t warnings;
    char const* error;
  };

  for (Row const& row :
       {Row{one + two, u"a,b\nc,d\n", 0, ""}, Row{one + std::string(512, '\0'), u"a,b\n", 0, ""},
        Row{one + std::string(5, '\0').append(two), u"a,b\nc,d\n", 0, ""},
        Row{one + "other bytes", u"a,b\n", 1, ""},
        Row{one + two.substr(0, 3), u"a,b\n", 1, "truncated-compression"},
        Row{one + "\x1Fzzz", u"a,b\n", 1, "damaged-compression"}}) {
    Outcome const read = read_all(row.bytes);
    EXPECT_TRUE(read.whole == row.text);
    EXPECT_EQ(read.findings.warnings.size(), row.warnings);
    EXPECT_EQ(read.error, row.error) << read.message;
  }
}

TEST(ratio_limit, stops_whoever_reads_on_but_not_the_sample) {
  std::string const bomb = packed("bzip2", std::string(std::size_t{40} << 20U, '\n'));
  Outcome const stopped = read_all(bomb);
  EXPECT_TRUE(stopped.is_open);
  EXPECT_EQ(stopped.error, "ratio-exceeded");
  EXPECT_LT(stopped.whole.size(), std::size_t{18} << 20U);
  OpenOptions unlimited;
  unlimited.ratio_limit = 0;
  EXPECT_EQ(read_all(bomb, unlimited).whole.size(), std::size_t{40} << 20U);
}

TEST(zip, is_read_by_its_only_or_its_named_member) {
  made::for_each_row("source/compression/zip.tsv", [](made::cells const& row) {
    std::vector<std::pair<std::string, std::string>> members = {{row[4], row[5]}};
    if (!row[6].empty()) {
      members.emplace_back(row[6], row[7]);
    }
    OpenOptions options;
    options.member = row[0];
    Outcome const read = read_all(made::zip(members), options);
    EXPECT_EQ(read.findings.member, row[1]);
    EXPECT_TRUE(read.error == row[2] || read.whole == made::utf16(row[2])) << read.message;
    EXPECT_NE(read.message.find(row[3]), std::string::npos) << read.message;
  });
}

TEST(zip, with_a_member_larger_than_the_sample_says_what_was_not_seen) {
  std::string const big = made::table_of(20000);
  OpenOptions options;
  options.sample_bytes = 1000;
  Outcome const one = read_all(made::zip({{"a", big}}), options);
  EXPECT_TRUE(one.error.empty() && one.findings.warnings.size() == 1);
  Outcome const two = read_all(made::zip({{"a", big}, {"b", "2\n"}}), options);
  EXPECT_TRUE(two.is_open && two.whole == made::utf16(big));
  EXPECT_EQ(two.error, "several-members");
  options.member = "b";
  EXPECT_EQ(read_all(made::zip({{"a", big}, {"b", "2\n"}}), options).whole, u"2\n");
}

TEST(ArchiveLibrary, that_cannot_be_loaded_is_named) {
  for (std::string const file : {"no_such_library.so.1", "libz.so.1"}) {
    try {
      static_cast<void>(load_archive_library(file.c_str(), "made"));
      ADD_FAILURE() << file << " was loaded";
    } catch (ImportError const& error) {
      EXPECT_EQ(error.kind(), ImportErrorKind::UnsupportedArchive);
      EXPECT_NE(error.message().find(file), std::string::npos) << error.message();
    }
  }
}

TEST(member, of_what_is_no_archive_is_an_error) {
  OpenOptions options;
  options.member = "a.csv";
  EXPECT_EQ(read_all("a,b\n", options).error, "member-not-found");
  EXPECT_EQ(read_all(packed("gzip", "a,b\n"), options).error, "member-not-found");
}

}  // namespace
}  // namespace textimport
