// SPDX-License-Identifier: MIT
//
// From bytes to text: decompression, the encoding, the decoder, the sample and the stream.
#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "tests/text_import/made_data.hpp"
#include "text_import/source/bytes/compression_marks_internal.hpp"

namespace {

using fuzz::require;
using textimport::made::Outcome;

class Pieces : public textimport::ByteSource {
 public:
  Pieces(std::string_view const bytes, std::size_t const piece) : bytes_(bytes), piece_(piece) {}

  std::size_t read(char* const room, std::size_t const capacity) override {
    std::size_t const length = bytes_.copy(room, std::min(piece_, capacity));
    bytes_.remove_prefix(length);
    return length;
  }

 private:
  std::string_view bytes_;
  std::size_t piece_;
};

std::size_t utf8_length(std::u16string_view const text) {
  std::size_t length = 0;
  for (char16_t const unit : text) {
    bool const is_half_of_pair = (unit & 0xF800U) == 0xD800;
    length += unit < 0x80 ? 1U : unit < 0x800 || is_half_of_pair ? 2U : 3U;
  }
  return length;
}

void require_sound(Outcome const& read, std::string_view const bytes) {
  auto const& [lf, crlf, cr] = read.findings.line_endings;
  auto const count = [&read](char16_t const unit) {
    return static_cast<std::uint64_t>(std::ranges::count(read.sample, unit));
  };
  require(count(u'\n') == lf + crlf && count(u'\r') == cr + crlf, "line endings are counted");
  require(count(u'\0') == read.findings.nuls, "NULs are counted");
  require(read.whole.find(textio::end_mark) == std::u16string::npos, "no end mark in a text");
  require(read.whole.starts_with(read.sample), "the sample is the head of the text");
  auto const& offsets = read.decoded.first_bad_offsets;
  require(offsets.size() <= textimport::DecodingCounts::max_bad_offsets &&
              std::ranges::is_sorted(offsets) && offsets.size() <= read.decoded.bad_bytes,
          "bad bytes are placed");
  if (read.error.empty() && read.findings.compression == "none" &&
      read.findings.encoding.name == "UTF-8" && read.decoded.bad_bytes == 0) {
    require(utf8_length(read.whole) == bytes.size() - read.findings.encoding.mark_bytes,
            "characters are conserved");
  }
}

void require_same(Outcome const& a, Outcome const& b) {
  require(a.is_open == b.is_open && a.error == b.error && a.message == b.message,
          "the same error, whatever the pieces");
  require(a.sample == b.sample && a.whole == b.whole, "the same text, whatever the pieces");
  require(a.findings.encoding.name == b.findings.encoding.name &&
              a.findings.bytes_read == b.findings.bytes_read &&
              a.findings.goes_on == b.findings.goes_on &&
              a.findings.warnings == b.findings.warnings &&
              a.decoded.bad_bytes == b.decoded.bad_bytes &&
              a.decoded.first_bad_offsets == b.decoded.first_bad_offsets,
          "the same findings, whatever the pieces");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  static std::vector<std::string> const encodings = textimport::encoding_names();
  fuzz::Input in(data, size);
  std::string const bytes(in.bytes().begin(), in.bytes().end());
  textimport::OpenOptions options;
  options.block_bytes = 1 + (std::size_t{in.byte()} << in.below(9));
  std::size_t const piece = 1 + std::size_t{in.byte()};
  if (unsigned const sample_bytes = in.byte()) {
    options.sample_bytes = sample_bytes;
  }
  options.strict = in.flag();
  if (in.flag()) {
    std::size_t const number = in.byte();
    options.encoding = encodings[(256 * number + in.byte()) % encodings.size()];
  }
  if (in.flag()) {
    options.member = "table.csv";
  }
  options.ratio_limit = in.flag() ? in.byte() : options.ratio_limit;

  if (textimport::compression_of(bytes) != "none") {
    options.block_bytes += 4096;  // a few bytes may be 16 MiB of text, too many to take one by one
  }
  Outcome const read = textimport::made::read_all(std::make_unique<Pieces>(bytes, piece), options);
  require_sound(read, bytes);
  options.block_bytes = std::size_t{1} << 16;
  require_same(read, textimport::made::read_all(bytes, options));
  return 0;
}
