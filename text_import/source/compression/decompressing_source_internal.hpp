// SPDX-License-Identifier: MIT
//
// What the decompressors have in common: the compressed bytes in blocks, the count of what came
// out of them, the limit of their ratio, and errors that stay.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/import_error.hpp"
#include "text_import/source/bytes/byte_source.hpp"
#include "text_import/source/bytes/open_options.hpp"

namespace textimport {

class DecompressingSource : public ByteSource {
 public:
  std::size_t read(char* room, std::size_t capacity) final;

 protected:
  DecompressingSource(std::unique_ptr<ByteSource> raw, std::string path, std::string format,
                      OpenOptions const& options);

  /// As ByteSource::read(), called no more once it threw.
  virtual std::size_t decompress(char* room, std::size_t capacity) = 0;

  /// The next block of compressed bytes, valid until the next call; empty at their end. Always as
  /// large as it can be: what a decompressor delivers in front of a fault may depend on it, and
  /// must not depend on how a pipe was filled.
  std::string_view next_block();

  [[nodiscard]] std::string const& path() const noexcept { return path_; }

  [[nodiscard]] std::string const& format() const noexcept { return format_; }

  /// How many bytes next_block() has delivered.
  [[nodiscard]] std::uint64_t consumed_bytes() const noexcept { return consumed_bytes_; }

  /// The errors of damaged data, at what was decompressed so far. `detail` is what the
  /// decompressor says, or empty.
  [[nodiscard]] ImportError truncated() const;
  [[nodiscard]] ImportError damaged(std::string const& detail) const;
  [[nodiscard]] ImportError wrong_checksum() const;
  [[nodiscard]] ImportError error(ImportErrorKind kind, std::string const& message) const;

 private:
  void check_ratio() const;

  std::unique_ptr<ByteSource> raw_;
  std::string path_;
  std::string format_;
  std::uint64_t ratio_limit_;
  std::size_t read_bytes_;
  std::vector<char> block_;
  std::uint64_t consumed_bytes_ = 0;
  std::uint64_t produced_bytes_ = 0;
  std::exception_ptr failure_;
};

}  // namespace textimport
