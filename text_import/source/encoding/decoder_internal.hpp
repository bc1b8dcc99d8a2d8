// SPDX-License-Identifier: MIT
//
// From bytes to UTF-16, block by block.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "text_import/source/encoding/decoding_counts.hpp"

namespace textimport {

/// Decodes a text that arrives in blocks; where a block is cut has no influence on the text.
class Decoder {
 public:
  /// `encoding` is a name as EncodingFinding has it. `offset` is the position of the first byte
  /// that is going to be decoded. With `strict`, decode() throws ImportError (BadBytes) with
  /// `path` in front of the first byte without a meaning.
  Decoder(std::string const& encoding, std::uint64_t offset, bool strict, std::string path);

  Decoder(Decoder const&) = delete;
  Decoder(Decoder&&) = delete;
  Decoder& operator=(Decoder const&) = delete;
  Decoder& operator=(Decoder&&) = delete;
  ~Decoder();

  /// Appends the text of `bytes` to `text`. Bytes of a character that is not whole are kept for
  /// the next call; with `last` there is none, and they are bad bytes.
  /// Appends no U+FFFF. When it throws, the text in front of the bad byte was appended.
  void decode(std::string_view bytes, bool last, std::u16string& text);

  [[nodiscard]] DecodingCounts const& counts() const noexcept { return counts_; }

 private:
  struct Converter;

  Converter& opened_converter();
  [[nodiscard]] bool is_between_characters() const;
  void convert(std::string_view bytes, bool last, std::u16string& text);
  void note_bad_offset(std::uint64_t offset);
  void replace_end_marks(std::u16string& text, std::size_t start);
  [[noreturn]] void throw_bad_bytes() const;

  std::unique_ptr<Converter> converter_;  // opened when it is needed
  std::string encoding_;
  std::string path_;
  std::uint64_t start_;
  std::uint64_t offset_;  // of the first byte that was not handed to the converter
  bool strict_;
  bool ascii_is_itself_;
  DecodingCounts counts_;
};

}  // namespace textimport
