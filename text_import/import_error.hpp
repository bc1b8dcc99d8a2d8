// SPDX-License-Identifier: MIT
//
// The one exception of the import layer: what failed, where, and what to do about it.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

#include "text_import/export.hpp"

namespace textimport {

/// What went wrong. Each kind is one thing that a caller may want to treat in its own way.
enum class ImportErrorKind : std::uint8_t {
  FileNotFound,
  NoPermission,
  IsDirectory,
  OpenFailed,            ///< any other failure to open
  ReadFailed,            ///< the system reported an error while reading
  TruncatedCompression,  ///< compressed data end too early
  DamagedCompression,    ///< compressed data are not what they should be
  WrongChecksum,         ///< compressed data are complete, but not what was once compressed
  NestedCompression,     ///< compressed data or an archive inside compressed data
  SeveralMembers,        ///< an archive with several members, and none was named
  MemberNotFound,        ///< no such member, or no archive at all
  UnsupportedArchive,    ///< an archive that is encrypted, or packed by a method unknown here
  RatioExceeded,         ///< decompressed data grow beyond the caller's limit
  BinaryContent,         ///< not text
  UnknownEncoding,       ///< no encoding of the given name
  BadBytes,              ///< bytes without a meaning in the encoding, and the caller is strict
};

/// The word for a kind in machine-readable output: "file-not-found", "no-permission" ...
[[nodiscard]] TEXT_IMPORT_API char const* name_of(ImportErrorKind kind) noexcept;

/// A text could not be opened or read any further.
///
/// what() begins with the path ("standard input" for "-"), followed by ": " and message(). Paths
/// and member names stand in it as they are: bytes, which need not be UTF-8 and may be control
/// characters, so that a program escapes them before it shows them on a terminal.
class TEXT_IMPORT_API ImportError : public std::runtime_error {
 public:
  /// `message` is one sentence without the path: what failed, where, what to do.
  ImportError(ImportErrorKind kind, std::string path, std::string message);

  ImportError(ImportError const&);
  ImportError(ImportError&&) noexcept;
  ImportError& operator=(ImportError const&);
  ImportError& operator=(ImportError&&) noexcept;
  ~ImportError() override;

  /// Sets where it happened and returns the error itself, to be thrown.
  ImportError& at_byte(std::uint64_t offset);

  /// Sets the system's error number and returns the error itself, to be thrown.
  ImportError& with_system_error(int number);

  [[nodiscard]] ImportErrorKind kind() const noexcept { return kind_; }

  /// The path as it was given, "-" for standard input.
  [[nodiscard]] std::string const& path() const noexcept { return path_; }

  /// The sentence without the path.
  [[nodiscard]] std::string const& message() const noexcept { return message_; }

  /// Where it happened, in bytes from the start: of the decompressed data, or of the file itself
  /// for ReadFailed. Empty where there is no such place.
  [[nodiscard]] std::optional<std::uint64_t> byte_offset() const noexcept { return byte_offset_; }

  /// The system's error number (errno), 0 where the system reported none.
  [[nodiscard]] int system_error() const noexcept { return system_error_; }

 private:
  ImportErrorKind kind_;
  std::string path_;
  std::string message_;
  std::optional<std::uint64_t> byte_offset_;
  int system_error_ = 0;
};

/// The name of a path for messages: "standard input" for "-", else the path itself.
[[nodiscard]] TEXT_IMPORT_API std::string display_name(std::string const& path);

}  // namespace textimport
