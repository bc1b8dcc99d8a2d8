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
class TEXT_IMPORT_API ByteSource {
 public:
  ByteSource() = default;
  ByteSource(ByteSource const&) = delete;
  ByteSource(ByteSource&&) = delete;
  ByteSource& operator=(ByteSource const&) = delete;
  ByteSource& operator=(ByteSource&&) = delete;
  virtual ~ByteSource();

  /// Writes up to `capacity` bytes (at least 1) to `room` and returns how many; may deliver fewer
  /// than there is room for. 0 means the end, also when asked again. Throws ImportError when the
  /// bytes cannot be read, again at every further call.
  virtual std::size_t read(char* room, std::size_t capacity) = 0;
};

/// The system's read(2), or what a test puts in its place.
using ReadFunction = std::function<ssize_t(int descriptor, void* room, std::size_t capacity)>;

/// Opens the file at `path` (bytes as the system has them, no encoding implied) or, for "-",
/// standard input, which is not closed afterwards. Interrupted calls are repeated.
/// Throws ImportError: FileNotFound, NoPermission, IsDirectory, OpenFailed; its read() throws
/// ReadFailed with errno and the byte offset in the file.
[[nodiscard]] TEXT_IMPORT_API std::unique_ptr<ByteSource> open_bytes(std::string const& path,
                                                                     ReadFunction read = {});

/// A source over memory that the caller keeps alive.
[[nodiscard]] TEXT_IMPORT_API std::unique_ptr<ByteSource> memory_bytes(std::string_view bytes);

}  // namespace textimport
