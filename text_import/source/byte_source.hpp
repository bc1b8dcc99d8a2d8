// SPDX-License-Identifier: MIT
//
// Where bytes come from: a file, a block of memory or standard input, read forwards only, so that
// a file and a pipe with the same bytes give the same answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <sys/types.h>

#include "text_import/export.hpp"

namespace textimport {

/// Bytes from the start to the end, once.
class TEXT_IMPORT_API byte_source {
 public:
  byte_source() = default;
  byte_source(byte_source const&) = delete;
  byte_source(byte_source&&) = delete;
  byte_source& operator=(byte_source const&) = delete;
  byte_source& operator=(byte_source&&) = delete;
  virtual ~byte_source();

  /// Writes up to `capacity` bytes (at least 1) to `room` and returns how many; may deliver fewer
  /// than there is room for. 0 means the end, also when asked again. Throws import_error when the
  /// bytes cannot be read, again at every further call.
  virtual std::size_t read(char* room, std::size_t capacity) = 0;
};

/// The system's read(2), or what a test puts in its place.
using read_function = std::function<ssize_t(int descriptor, void* room, std::size_t capacity)>;

/// Opens the file at `path` (bytes as the system has them, no encoding implied) or, for "-",
/// standard input, which is not closed afterwards. Interrupted calls are repeated.
/// Throws import_error: FileNotFound, NoPermission, IsDirectory, OpenFailed; its read() throws
/// ReadFailed with errno and the byte offset in the file.
[[nodiscard]] TEXT_IMPORT_API std::unique_ptr<byte_source> open_bytes(std::string const& path,
                                                                      read_function read = {});

/// A source over memory that the caller keeps alive.
[[nodiscard]] TEXT_IMPORT_API std::unique_ptr<byte_source> memory_bytes(std::string_view bytes);

}  // namespace textimport
