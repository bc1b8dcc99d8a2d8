// SPDX-License-Identifier: MIT
#include "text_import/import_error.hpp"

#include <utility>

namespace textimport {

char const* name_of(ImportErrorKind const kind) noexcept {
  switch (kind) {
    case ImportErrorKind::FileNotFound:
      return "file_not_found";
    case ImportErrorKind::NoPermission:
      return "no_permission";
    case ImportErrorKind::IsDirectory:
      return "is_directory";
    case ImportErrorKind::OpenFailed:
      return "open_failed";
    case ImportErrorKind::ReadFailed:
      return "read_failed";
    case ImportErrorKind::TruncatedCompression:
      return "truncated_compression";
    case ImportErrorKind::DamagedCompression:
      return "damaged_compression";
    case ImportErrorKind::WrongChecksum:
      return "wrong_checksum";
    case ImportErrorKind::NestedCompression:
      return "nested_compression";
    case ImportErrorKind::SeveralMembers:
      return "several_members";
    case ImportErrorKind::MemberNotFound:
      return "member_not_found";
    case ImportErrorKind::UnsupportedArchive:
      return "unsupported_archive";
    case ImportErrorKind::RatioExceeded:
      return "ratio_exceeded";
    case ImportErrorKind::BinaryContent:
      return "binary_content";
    case ImportErrorKind::UnknownEncoding:
      return "unknown_encoding";
    case ImportErrorKind::BadBytes:
      return "bad_bytes";
  }
  return "unknown";
}

ImportError::ImportError(ImportErrorKind const kind, std::string path, std::string message)
    : std::runtime_error(display_name(path) + ": " + message),
      kind_(kind),
      path_(std::move(path)),
      message_(std::move(message)) {}

ImportError::ImportError(ImportError const&) = default;
ImportError::ImportError(ImportError&&) noexcept = default;
ImportError& ImportError::operator=(ImportError const&) = default;
ImportError& ImportError::operator=(ImportError&&) noexcept = default;
ImportError::~ImportError() = default;

ImportError& ImportError::at_byte(std::uint64_t const offset) {
  byte_offset_ = offset;
  return *this;
}

ImportError& ImportError::with_system_error(int const number) {
  system_error_ = number;
  return *this;
}

std::string display_name(std::string const& path) {
  return path == "-" ? "standard input" : path;
}

}  // namespace textimport
