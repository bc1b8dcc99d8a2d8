// SPDX-License-Identifier: MIT
#include "text_import/import_error.hpp"

#include <utility>

namespace textimport {

char const* name_of(ImportErrorKind const kind) noexcept {
  switch (kind) {
    case ImportErrorKind::FileNotFound:
      return "file-not-found";
    case ImportErrorKind::NoPermission:
      return "no-permission";
    case ImportErrorKind::IsDirectory:
      return "is-directory";
    case ImportErrorKind::OpenFailed:
      return "open-failed";
    case ImportErrorKind::ReadFailed:
      return "read-failed";
    case ImportErrorKind::TruncatedCompression:
      return "truncated-compression";
    case ImportErrorKind::DamagedCompression:
      return "damaged-compression";
    case ImportErrorKind::WrongChecksum:
      return "wrong-checksum";
    case ImportErrorKind::NestedCompression:
      return "nested-compression";
    case ImportErrorKind::SeveralMembers:
      return "several-members";
    case ImportErrorKind::MemberNotFound:
      return "member-not-found";
    case ImportErrorKind::UnsupportedArchive:
      return "unsupported-archive";
    case ImportErrorKind::RatioExceeded:
      return "ratio-exceeded";
    case ImportErrorKind::BinaryContent:
      return "binary-content";
    case ImportErrorKind::UnknownEncoding:
      return "unknown-encoding";
    case ImportErrorKind::BadBytes:
      return "bad-bytes";
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
