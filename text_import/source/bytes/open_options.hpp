// SPDX-License-Identifier: MIT
//
// What a caller may say about a file before it is opened.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace textimport {

/// How a text is opened.
struct OpenOptions {
  /// How many bytes of the decompressed data are looked at for the sample. At least 1.
  std::size_t sample_bytes = std::size_t{1} << 20;
  /// The encoding by any of its usual names; empty: it is found out.
  std::string encoding;
  /// The member of a zip archive that is read; empty: the only one.
  std::string member;
  /// Bytes without a meaning in the encoding are an error instead of being replaced.
  bool strict = false;
  /// How many bytes are asked of the file at a time. At least 1. Has no influence on the answer.
  std::size_t block_bytes = std::size_t{1} << 16;
  /// Decompressed data beyond their first 16 MiB may be at most this many times larger than the
  /// compressed data read for them; 0: no limit.
  std::uint64_t ratio_limit = 2000;
  /// What ends a line, where the sample is cut. Empty: CR LF, LF and CR.
  std::vector<std::u16string> line_endings;
};

}  // namespace textimport
