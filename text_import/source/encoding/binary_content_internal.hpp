// SPDX-License-Identifier: MIT
//
// Files that are no text, recognised by the marks of their formats or by their control characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace textimport {

/// How many bytes of a file are looked at for its format.
inline constexpr std::size_t sniffed_bytes = 1024;

/// What the bytes begin like ("a Parquet file"), empty for what may be text. `is_archive` is set
/// for collections of files and for compressed data.
struct BinaryFormat {
  std::string_view description;
  std::string_view advice;  // what to do with it
  bool is_archive = false;
};

BinaryFormat const* binary_format_of(std::string_view head);

/// Throws ImportError (BinaryContent) when a zip archive is a document of an office program.
void refuse_office_document(std::string_view head, std::string const& path);

/// Throws ImportError (BinaryContent) when the decompressed data begin like a binary format;
/// NestedCompression when they were compressed (by `compression`) and hold compressed data or an
/// archive once more.
void refuse_binary_format(std::string_view head, std::string_view compression,
                          std::string const& path);

/// Throws ImportError (BinaryContent) when the text has more control characters than text has.
/// One control character may be frequent, since some texts are delimited by one.
void refuse_control_characters(std::u16string_view text, std::string const& path);

}  // namespace textimport
