// SPDX-License-Identifier: MIT
//
// An opened text: the sample at its head, the stream over all of it, and what was found out on the
// way from bytes to text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/platform/text_stream.hpp"
#include "text_import/export.hpp"
#include "text_import/format/format.hpp"
#include "text_import/format/text_sample.hpp"
#include "text_import/source/bytes/byte_source.hpp"
#include "text_import/source/encoding/encoding.hpp"

namespace textimport {

/// How a text is opened.
struct OpenOptions {
  /// How many bytes of the decompressed data are looked at for the sample. At least 1.
  std::size_t sample_bytes = std::size_t{1} << 20;
  /// The encoding by any of its usual names; empty: it is found out.
  std::string encoding;
  /// The member of a zip archive that is read; empty: the only one.
  std::string member;
  /// Bytes without a meaning in the encoding are an error instead of being replaced.
  bool strict = false;
  /// How many bytes are asked of the file at a time. At least 1. Has no influence on the answer.
  std::size_t block_bytes = std::size_t{1} << 16;
  /// Decompressed data beyond their first 16 MiB may be at most this many times larger than the
  /// compressed data read for them; 0: no limit.
  std::uint64_t ratio_limit = 2000;
  /// What ends a line, where the sample is cut. Empty: CR LF, LF and CR.
  std::vector<std::u16string> line_endings;
};

/// What decoding had to replace by U+FFFD, so that no text is taken for something it is not.
struct DecodingCounts {
  /// Bytes without a meaning in the encoding.
  std::uint64_t bad_bytes = 0;
  /// Where the first of them stand, at most `max_bad_offsets`: byte offsets in the decompressed
  /// data (a byte-order mark counts), one for each run of bytes that was replaced by one U+FFFD.
  std::vector<std::uint64_t> first_bad_offsets;
  /// Code units U+FFFF, which the library behind takes for the end of the text.
  std::uint64_t replaced_end_marks = 0;

  static constexpr std::size_t max_bad_offsets = 8;
};

/// What was found out about a text when it was opened.
struct TextFindings {
  EncodingFinding encoding;
  /// "none", "gzip", "bzip2", "xz", "zstd", "lz4" or "zip".
  std::string compression = "none";
  /// The name of the archive's member as its bytes stand in the archive; empty without archive.
  std::string member;
  /// How many bytes of the (decompressed) data the head has: all, or OpenOptions::sample_bytes.
  std::uint64_t bytes_read = 0;
  /// True when the data go on behind the head, or would if they were not damaged.
  bool goes_on = false;
  /// True when the text goes on and no line ends in the head: the sample is a piece of one line.
  bool no_line_end = false;
  /// Counted in the sample.
  LineEndingCounts line_endings;
  /// NUL characters, counted in the sample.
  std::uint64_t nuls = 0;
  /// Counted in the head, which reaches behind the sample by part of a line.
  DecodingCounts decoding;
  /// Sentences, without the path, on what is wrong but did not prevent the answer: compressed data
  /// that are damaged behind the text that they delivered, bytes behind the compressed data ...
  std::vector<std::string> warnings;
};

class OpenedText;

/// A text file, opened: decompressed, its encoding found, its head decoded to UTF-16.
///
/// An empty file is a text with an empty sample and not an error.
///
/// Memory, whatever the size of the file: while it is opened 3 bytes for each byte of the head and
/// below 0.5 MiB beside them, afterwards 2 bytes for each (its text) and as much beside; with the
/// default options that is at most 3.5 MiB. What the decompressor needs comes on top: gzip and zip
/// below 0.1 MiB, bzip2 4 MiB, lz4 8 MiB, xz and zstd as much as the one who compressed chose:
/// usually 8 MiB, at its strongest 65 MiB and 128 MiB. Larger blocks count three times.
///
/// Can be moved; views of the sample stay valid until the last of the TextSource and its stream
/// is destroyed. Not for several threads at once.
class TEXT_IMPORT_API TextSource {
 public:
  /// Opens the file at `path`, or standard input for "-". "archive.zip:member" names a member of
  /// an archive when there is no file of that whole name; so does "-:member".
  /// Throws ImportError, of every kind. Damaged or truncated compressed data are an error only if
  /// they delivered no text, else a warning; see stream().
  [[nodiscard]] static TextSource open(std::string const& path, OpenOptions const& options = {});

  /// The same for bytes from elsewhere; `path` is what messages call them.
  [[nodiscard]] static TextSource open(std::unique_ptr<ByteSource> bytes, std::string const& path,
                                       OpenOptions const& options = {});

  TextSource(TextSource&&) noexcept;
  TextSource& operator=(TextSource&&) noexcept;
  TextSource(TextSource const&) = delete;
  TextSource& operator=(TextSource const&) = delete;
  ~TextSource();

  /// The head of the text. When the text goes on it is cut behind the last whole line; a line
  /// ending at the very end of the head does not count where it may be the start of a longer one,
  /// as a CR may be in front of an LF. If no line ends in the head it is all of it
  /// (findings().no_line_end), cut in front of a character that is not whole. Holds no U+FFFF and
  /// no byte-order mark.
  [[nodiscard]] textio::Field sample() const noexcept;

  /// The same as the analysis takes it, with what is known of where it comes from. A view: it stays
  /// valid as long as sample() does.
  [[nodiscard]] TextSample text_sample() const;

  /// The whole text from its first character on: first the sample's, then what follows, decoded
  /// as it is asked for. The text can be read once: throws std::logic_error at the second call.
  /// Keeps alive what it needs. Its refill() throws ImportError where the text cannot be read any
  /// further, after all text in front of that place was delivered; damaged compressed data that
  /// were a warning at opening are an error here.
  [[nodiscard]] ostrel::io::text::stream::TextStream stream();

  /// What was found out at opening. Reading the stream may add warnings, nothing else.
  [[nodiscard]] TextFindings const& findings() const noexcept;

  /// The same counts as findings().decoding for everything that was decoded so far, so that they
  /// are those of the whole text once the stream has reached its end.
  [[nodiscard]] DecodingCounts const& decoded_so_far() const noexcept;

  /// The path as it was given, without the member behind it; "-" for standard input.
  [[nodiscard]] std::string const& path() const noexcept;

 private:
  explicit TextSource(std::shared_ptr<OpenedText> opened) noexcept;

  std::shared_ptr<OpenedText> opened_;
  bool is_streamed_ = false;
};

}  // namespace textimport
