// SPDX-License-Identifier: MIT
#include "text_import/import_error.hpp"

#include <utility>

namespace textimport {

char const* name_of(import_error_kind const kind) noexcept {
  switch (kind) {
    case import_error_kind::FileNotFound:
      return "file_not_found";
    case import_error_kind::NoPermission:
      return "no_permission";
    case import_error_kind::IsDirectory:
      return "is_directory";
    case import_error_kind::OpenFailed:
      return "open_failed";
    case import_error_kind::ReadFailed:
      return "read_failed";
    case import_error_kind::TruncatedCompression:
      return "truncated_compression";
    case import_error_kind::DamagedCompression:
      return "damaged_compression";
    case import_error_kind::WrongChecksum:
      return "wrong_checksum";
    case import_error_kind::NestedCompression:
      return "nested_compression";
    case import_error_kind::SeveralMembers:
      return "several_members";
    case import_error_kind::MemberNotFound:
      return "member_not_found";
    case import_error_kind::UnsupportedArchive:
      return "unsupported_archive";
    case import_error_kind::RatioExceeded:
      return "ratio_exceeded";
    case import_error_kind::BinaryContent:
      return "binary_content";
    case import_error_kind::UnknownEncoding:
      return "unknown_encoding";
    case import_error_kind::BadBytes:
      return "bad_bytes";
  }
  return "unknown";
}

import_error::import_error(import_error_kind const kind, std::string path, std::string message)
    : std::runtime_error(display_name(path) + ": " + message),
      kind_(kind),
      path_(std::move(path)),
      message_(std::move(message)) {}

import_error::import_error(import_error const&) = default;
import_error::import_error(import_error&&) noexcept = default;
import_error& import_error::operator=(import_error const&) = default;
import_error& import_error::operator=(import_error&&) noexcept = default;
import_error::~import_error() = default;

import_error& import_error::at_byte(std::uint64_t const offset) {
  byte_offset_ = offset;
  return *this;
}

import_error& import_error::with_system_error(int const number) {
  system_error_ = number;
  return *this;
}

std::string display_name(std::string const& path) {
  return path == "-" ? "standard input" : path;
}

}  // namespace textimport
