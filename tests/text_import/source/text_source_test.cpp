// SPDX-License-Identifier: MIT
//
// The opened text: where the sample is cut, what is counted, the stream, and the memory bound.
#include "text_import/source/text_source.hpp"

#include <atomic>
#include <cstdlib>
#include <new>
#include <sstream>

#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/text_import/made_data.hpp"
#include "tests/text_import/tables.hpp"
#include "text_import/source/notes.hpp"

namespace {

// All memory of this program that comes from operator new: in use now, and at most so far.
std::atomic<std::size_t> bytes_in_use = 0;
std::atomic<std::size_t> most_bytes_in_use = 0;

}  // namespace

void* operator new(std::size_t const size) {
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  std::size_t const used = bytes_in_use += ::malloc_usable_size(memory);
  most_bytes_in_use = std::max<std::size_t>(most_bytes_in_use, used);
  return memory;
}

// The sanitizers have one of their own, whose memory the operators below must not free.
void* operator new(std::size_t const size, std::nothrow_t const& /*tag*/) noexcept {
  try {
    return operator new(size);
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}

// Not inlined: the compiler would take free() for the wrong counterpart of new.
[[gnu::noinline]] void operator delete(void* const memory) noexcept {
  bytes_in_use -= ::malloc_usable_size(memory);
  std::free(memory);
}

void operator delete(void* const memory, std::size_t) noexcept {
  operator delete(memory);
}

namespace textimport {
namespace {

using made::Outcome;
using made::read_all;

TEST(sample, is_cut_behind_the_last_whole_line_if_the_text_goes_on) {
  made::for_each_row("source/sample_cuts.tsv", [&](made::cells const& row) {
    for (std::size_t const block : {1U, 2U, 3U, 64U}) {
      SCOPED_TRACE(row[0] + " " + row[1]);
      OpenOptions options;
      options.sample_bytes = std::stoul(row[1]);
      options.block_bytes = block;
      std::istringstream endings(row[4]);
      for (std::string ending; std::getline(endings, ending, ' ');) {
        options.line_endings.push_back(made::utf16(ending));
      }
      Outcome const read = read_all(row[0], options);
      EXPECT_EQ(read.error, "");
      EXPECT_TRUE(read.sample == made::utf16(row[2])) << testing::PrintToString(read.sample);
      EXPECT_EQ(read.findings.goes_on, row[3] != "ends");
      EXPECT_EQ(read.findings.no_line_end, row[3] == "no line end");
      EXPECT_EQ(read.findings.bytes_read, std::min(options.sample_bytes, row[0].size()));
      EXPECT_TRUE(read.whole == read_all(row[0]).sample) << "the stream is the whole text";
    }
  });
}

TEST(sample, has_its_line_ends_and_odd_characters_counted) {
  made::for_each_row("source/counts.tsv", [&](made::cells const& row) {
    TextFindings const found = read_all(row[0]).findings;
    std::ostringstream counts;
    counts << found.line_endings.lf << ' ' << found.line_endings.crlf << ' '
           << found.line_endings.cr << ' ' << found.nuls << ' ' << found.decoding.bad_bytes << ' '
           << found.decoding.replaced_end_marks;
    EXPECT_EQ(counts.str(), row[1]) << row[0];
  });
}

TEST(sample, has_the_same_counts_wherever_they_stand) {
  OpenOptions options;
  options.encoding = "UTF-8";
  for (std::size_t before = 0; before < 520; ++before) {
    SCOPED_TRACE(before);
    Outcome const read =
        read_all(std::string(before, 'x') + std::string("\r\n\r\0\n\xEF\xBF\xBF\r", 9), options);
    EXPECT_EQ(read.sample.size(), before + 7);
    EXPECT_EQ(read.findings.line_endings.lf, 1U);
    EXPECT_EQ(read.findings.line_endings.crlf, 1U);
    EXPECT_EQ(read.findings.line_endings.cr, 2U);
    EXPECT_EQ(read.findings.nuls, 1U);
    EXPECT_EQ(read.findings.decoding.replaced_end_marks, 1U);
  }
}

std::string noted(std::string const& bytes, OpenOptions const& options = {}) {
  std::string text;
  for (std::string const& note : notes(read_all(bytes, options).findings)) {
    text += note + "\n";
  }
  return text;
}

TEST(notes, tell_what_a_reader_should_know_of_the_text) {
  EXPECT_EQ(noted("a,b\n"), "");
  OpenOptions options;
  options.sample_bytes = 3;
  EXPECT_EQ(noted("abcd\n", options),
            "no line ends in the sample, which is a piece of one line; a larger sample may help\n");
  options.sample_bytes = 100;
  options.encoding = "UTF-8";
  EXPECT_EQ(noted(std::string("a\0b\n", 4), options), "the sample holds 1 NUL character\n");
  EXPECT_EQ(noted(std::string("\0ab\xFF\n\xFE\0", 7), options),
            "2 bytes without a meaning in UTF-8 replaced by U+FFFD, first at byte 3\n"
            "the sample holds 2 NUL characters\n");
  std::string const damaged = made::packed("gzip", made::table_of(2000));
  EXPECT_NE(noted(damaged.substr(0, damaged.size() - 4)), "");
}

TEST(text_sample, says_where_the_text_comes_from) {
  OpenOptions options;
  options.sample_bytes = 9;
  options.line_endings = {u";"};
  std::string const archive = made::zip({{"m.csv",
                                          "\xEF\xBB\xBF"
                                          "a\r\nb;c\nd"}});
  auto const source = TextSource::open(memory_bytes(archive), "-", options);
  TextSample const sample = source.text_sample();
  EXPECT_TRUE(sample.text == u"a\r\nb;" && sample.goes_on == source.findings().goes_on);
  SourceFormat expected{.encoding = "UTF-8",
                        .has_byte_order_mark = true,
                        .encoding_origin = Origin::Found,
                        .compression = "zip",
                        .member = "m.csv",
                        .line_endings = {u";"},
                        .line_endings_origin = Origin::Given,
                        .line_ending_counts = {0, 1, 0}};
  EXPECT_TRUE(sample.source == expected);
}

TEST(stream, goes_on_where_the_sample_ended_with_everything_counted) {
  std::string const begin = "\u00E4\u00F6\u00FC\u00DF\u00C4\n" + made::table_of(5000);
  std::string const text = begin + "\xFF" + made::table_of(5000) + "\xFE\xFE";
  OpenOptions options;
  options.sample_bytes = 1000;
  options.block_bytes = 100;
  Outcome const read = read_all(text, options);
  EXPECT_EQ(read.findings.decoding.bad_bytes, 0U);
  EXPECT_EQ(read.decoded.bad_bytes, 3U);
  EXPECT_EQ(read.decoded.first_bad_offsets,
            (std::vector<std::uint64_t>{begin.size(), text.size() - 2, text.size() - 1}));
  options.strict = true;
  Outcome const strict = read_all(text, options);
  EXPECT_TRUE(strict.is_open && strict.whole == made::utf16(begin));
  EXPECT_EQ(strict.error, "bad-bytes");
  EXPECT_EQ(strict.error_byte, begin.size());
  options.sample_bytes = 10000;
  EXPECT_FALSE(read_all(text, options).is_open);
}

TEST(stream, outlives_the_source_and_can_be_taken_once) {
  TextSource source = TextSource::open(memory_bytes("a,b\n"), "made");
  auto const stream = source.stream();
  EXPECT_THROW(static_cast<void>(source.stream()), std::logic_error);
  TextSource const moved = std::move(source);
  EXPECT_EQ(moved.sample().view(), u"a,b\n");
  source = TextSource::open(memory_bytes("c\n"), "other");
  stream.resizeInternalBuffer(10);
  stream.refill();
  EXPECT_EQ(std::u16string(stream.data(), stream.buffered()), u"a,b\n");
}

/// 64 MiB of lines, made as they are read.
class EndlessLines : public ByteSource {
 public:
  std::size_t read(char* const room, std::size_t const capacity) override {
    std::size_t const length = std::min(capacity, left_);
    for (std::size_t i = 0; i < length; ++i) {
      room[i] = (left_ - i) % 32 == 1 ? '\n' : 'a';
    }
    left_ -= length;
    return length;
  }

 private:
  std::size_t left_ = std::size_t{1} << 26U;
};

TEST(memory, stays_below_its_bound_for_text_of_any_size) {
  std::size_t const before = bytes_in_use;
  most_bytes_in_use = before;
  TextSource source = TextSource::open(std::make_unique<EndlessLines>(), "made");
  EXPECT_LT(most_bytes_in_use - before, (std::size_t{7} << 20U) / 2);
  auto stream = source.stream();
  stream.resizeInternalBuffer(1 << 16);
  std::size_t units = 0;
  while (!stream.at_end()) {
    stream.refill();
    units += stream.buffered();
    stream.advance(stream.buffered());
  }
  EXPECT_EQ(units, std::size_t{1} << 26U);
  EXPECT_LT(most_bytes_in_use - before, (std::size_t{7} << 20U) / 2);
}

TEST(OpenOptions, of_no_size_mean_one) {
  OpenOptions options;
  options.sample_bytes = 0;
  options.block_bytes = 0;
  EXPECT_EQ(read_all("ab", options).sample, u"a");
}

}  // namespace
}  // namespace textimport
