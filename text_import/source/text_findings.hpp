// SPDX-License-Identifier: MIT
//
// What is known of a text once it is opened: where its bytes come from and how they were read.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text_import/format/format.hpp"
#include "text_import/source/encoding/decoding_counts.hpp"
#include "text_import/source/encoding/encoding.hpp"

namespace textimport {

/// What was found out about a text when it was opened.
struct TextFindings {
  EncodingFinding encoding;
  /// "none", "gzip", "bzip2", "xz", "zstd", "lz4" or "zip".
  std::string compression = "none";
  /// The name of the archive's member as its bytes stand in the archive; empty without archive.
  std::string member;
  /// How many bytes of the (decompressed) data the head has: all, or OpenOptions::sample_bytes.
  std::uint64_t bytes_read = 0;
  /// True when the data go on behind the head, or would if they were not damaged.
  bool goes_on = false;
  /// True when the text goes on and no line ends in the head: the sample is a piece of one line.
  bool no_line_end = false;
  /// Counted in the sample.
  LineEndingCounts line_endings;
  /// NUL characters, counted in the sample.
  std::uint64_t nuls = 0;
  /// Counted in the head, which reaches behind the sample by part of a line.
  DecodingCounts decoding;
  /// Sentences, without the path, on what is wrong but did not prevent the answer: compressed data
  /// that are damaged behind the text that they delivered, bytes behind the compressed data ...
  std::vector<std::string> warnings;
};

}  // namespace textimport
