// SPDX-License-Identifier: MIT
//
// An opened text: the sample at its head, the stream over all of it, and what was found out on the
// way from bytes to text.
#pragma once

#include <memory>
#include <string>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/platform/text_stream.hpp"
#include "text_import/export.hpp"
#include "text_import/format/text_sample.hpp"
#include "text_import/source/bytes/byte_source.hpp"
#include "text_import/source/bytes/open_options.hpp"
#include "text_import/source/text_findings.hpp"

namespace textimport {

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
