// SPDX-License-Identifier: MIT
//
// From bytes to text: opening, which reads and decodes the head, from memory and from a file, and
// reading a whole text through its stream.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

#include "benchmarks/operation.hpp"
#include "text_import/source/text_source.hpp"

namespace textio::benchmarks {

namespace {

// Every shape but those whose control characters make them binary data.
constexpr std::string_view readable =
    "narrow_numbers wide_text quoted_prose blank_runs padded_fixed_width one_long_line log "
    "eight_candidates";

using Encode = std::string (*)(std::u16string_view);

std::string one_byte_each(std::u16string_view const text) {
  std::string bytes;
  for (char16_t const unit : text) {
    bytes += static_cast<char>(unit);
  }
  return bytes;
}

/// UTF-8 in which each e has an accent, so that hardly a word is ASCII.
std::string accented_utf8(std::u16string_view const text) {
  std::string bytes;
  for (char16_t const unit : text) {
    bytes += unit == u'e' ? std::string("\xC3\xA9") : std::string(1, static_cast<char>(unit));
  }
  return bytes;
}

std::string accented_windows(std::u16string_view const text) {
  std::string bytes = one_byte_each(text);
  for (char& byte : bytes) {
    byte = byte == 'e' ? '\xE9' : byte;
  }
  return bytes;
}

std::string utf16(std::u16string_view const text) {
  std::string bytes("\xFF\xFE");
  for (char16_t const unit : text) {
    bytes += static_cast<char>(unit);
    bytes += '\0';
  }
  return bytes;
}

textimport::TextSource open_memory(std::string const& bytes) {
  return textimport::TextSource::open(textimport::memory_bytes(bytes), "memory");
}

Prepare open_from_memory(Encode const encode) {
  return [encode](Shape const& /*shape*/, std::u16string_view const text) {
    return [bytes = encode(text)] { return open_memory(bytes).sample().length(); };
  };
}

Prepare read_whole(Encode const encode) {
  return [encode](Shape const& /*shape*/, std::u16string_view const text) {
    return [bytes = encode(text)] {
      auto source = open_memory(bytes);
      auto stream = source.stream();
      stream.resizeInternalBuffer(std::size_t{1} << 16U);
      std::size_t units = 0;
      while (stream.refill() > 0) {
        units += stream.buffered();
        stream.advance(stream.buffered());
      }
      return units;
    };
  };
}

/// A file that is removed with the last of its owners.
class TemporaryFile {
 public:
  explicit TemporaryFile(std::string const& bytes)
      : path_(std::filesystem::temp_directory_path() /
              ("decoding_benchmark." + std::to_string(::getpid()))) {
    std::ofstream(path_, std::ios::binary) << bytes;
  }

  TemporaryFile(TemporaryFile const&) = delete;
  TemporaryFile(TemporaryFile&&) = delete;
  TemporaryFile& operator=(TemporaryFile const&) = delete;
  TemporaryFile& operator=(TemporaryFile&&) = delete;

  ~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

Work open_from_file(Shape const& /*shape*/, std::u16string_view const text) {
  auto const file = std::make_shared<TemporaryFile const>(one_byte_each(text));
  return [file] { return textimport::TextSource::open(file->path()).sample().length(); };
}

}  // namespace

std::span<Operation const> operations() {
  static std::vector<Operation> const all{
      {.name = "open_memory", .prepare = open_from_memory(one_byte_each), .shapes = readable},
      {.name = "open_file", .prepare = open_from_file, .shapes = readable},
      {.name = "open_utf8_accents",
       .prepare = open_from_memory(accented_utf8),
       .shapes = "narrow_numbers wide_text log"},
      {.name = "open_windows_1252",
       .prepare = open_from_memory(accented_windows),
       .shapes = "wide_text log"},
      {.name = "open_utf16",
       .prepare = open_from_memory(utf16),
       .shapes = "narrow_numbers wide_text log"},
      {.name = "read_whole", .prepare = read_whole(one_byte_each), .shapes = readable},
      {.name = "read_whole_utf8_accents",
       .prepare = read_whole(accented_utf8),
       .shapes = "wide_text log"},
  };
  return all;
}

}  // namespace textio::benchmarks
