// SPDX-License-Identifier: MIT
//
// The state that a TextSource and its stream share: from compressed bytes to the sample, and on
// from there.
#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "text_import/import_error.hpp"
#include "text_import/source/bytes/byte_source.hpp"
#include "text_import/source/bytes/open_options.hpp"
#include "text_import/source/encoding/decoder_internal.hpp"
#include "text_import/source/text_findings.hpp"

namespace textimport {

class OpenedText {
 public:
  /// Opens a text as TextSource::open() describes it.
  OpenedText(std::unique_ptr<ByteSource> raw, std::string path, OpenOptions const& options);

  [[nodiscard]] std::string const& path() const noexcept { return path_; }

  [[nodiscard]] TextFindings const& findings() const noexcept { return findings_; }

  [[nodiscard]] std::u16string_view sample() const noexcept {
    return {head_text_.data(), sample_length_};
  }

  /// What is known of the bytes and of the lines.
  [[nodiscard]] SourceFormat source_format() const;

  [[nodiscard]] DecodingCounts const& decoded() const noexcept { return decoder_->counts(); }

  /// Writes the next code units of the whole text to `room`, at most `capacity`; 0 at its end.
  /// Throws ImportError behind the last that can be had.
  std::size_t deliver(char16_t* room, std::size_t capacity);

 private:
  std::string_view read_block(std::size_t capacity);
  void read_head(std::string& head);
  void note_failure(ImportError const& error, bool after_text);
  void note_unseen_members();
  void decode_head(std::string_view head);
  void cut_sample();
  void decode_next_block();

  std::string path_;
  OpenOptions options_;
  TextFindings findings_;
  std::unique_ptr<ByteSource> bytes_;
  std::optional<Decoder> decoder_;
  std::u16string head_text_;  // the sample and the begun line behind it
  std::size_t sample_length_ = 0;
  std::unique_ptr<char[]> block_;
  std::size_t block_capacity_ = 0;
  std::string_view ahead_;  // a block that was read, but not decoded yet
  std::u16string block_text_;
  std::u16string_view undelivered_;  // of head_text_, later of block_text_
  std::exception_ptr failure_;       // behind the text that was read
  bool at_end_ = false;
};

}  // namespace textimport
