// SPDX-License-Identifier: MIT
//
// Compressed data are recognised and unpacked by one level.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "text_import/source/bytes/byte_source.hpp"
#include "text_import/source/bytes/open_options.hpp"

namespace textimport {

/// A source of decompressed bytes, and what was found out by opening it.
struct DecompressedBytes {
  std::unique_ptr<ByteSource> bytes;
  std::string compression;
  std::string member;  // of an archive
};

/// Puts what is needed over `raw`, whose end and errors are passed on. The decompressed source
/// first delivers all that could be decompressed and then throws ImportError, again at every
/// further call: TruncatedCompression, DamagedCompression, WrongChecksum, NestedCompression,
/// SeveralMembers (behind the first member), UnsupportedArchive, RatioExceeded, with the byte
/// offset in the decompressed data. Appends to `warnings`, which must outlive the source, what is
/// odd but harmless.
/// Throws the same, and MemberNotFound, or BinaryContent for an archive that is really a document
/// of an office program.
DecompressedBytes decompress(std::unique_ptr<ByteSource> raw, std::string const& path,
                             OpenOptions const& options, std::vector<std::string>& warnings);

}  // namespace textimport
