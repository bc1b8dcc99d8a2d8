// SPDX-License-Identifier: MIT
//
// What the tests of the import layer are made of: packed data, and a short way to open and read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "text_import/import_error.hpp"
#include "text_import/source/text_source.hpp"

namespace textimport::made {

/// `text` packed as compression_of() names it; "zip" holds one member, table.csv.
std::string packed(std::string const& format, std::string const& text);

/// A zip archive of members, name and content.
std::string zip(std::vector<std::pair<std::string, std::string>> const& members);

inline constexpr char const* packed_formats[] = {"gzip", "bzip2", "xz", "zstd", "lz4", "zip"};

/// Lines "1,a", "2,b" ..., as many as fit into `bytes`.
std::string table_of(std::size_t bytes);

/// What came of a text: its sample and stream, or the kinds of errors met at opening and reading.
struct Outcome {
  bool is_open = false;
  TextFindings findings;
  std::u16string sample;
  std::u16string whole;
  DecodingCounts decoded;
  std::string error;  // name_of() the kind, "" without; of open() or of the stream
  std::string message;
  std::uint64_t error_byte = 0;

  /// True when something was said against the text.
  [[nodiscard]] bool is_doubted() const { return !error.empty() || !findings.warnings.empty(); }
};

/// Opens and reads to the end.
Outcome read_all(std::unique_ptr<ByteSource> bytes, OpenOptions const& options = {});
Outcome read_all(std::string const& bytes, OpenOptions const& options = {});

/// UTF-8 to UTF-16, for expected texts.
std::u16string utf16(std::string const& utf8);

}  // namespace textimport::made
