// SPDX-License-Identifier: MIT
//
// What was lost on the way from bytes to text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace textimport {

/// What decoding had to replace by U+FFFD, so that no text is taken for something it is not.
struct DecodingCounts {
  /// Bytes without a meaning in the encoding.
  std::uint64_t bad_bytes = 0;
  /// Where the first of them stand, at most `max_bad_offsets`: byte offsets in the decompressed
  /// data (a byte-order mark counts), one for each run of bytes that was replaced by one U+FFFD.
  std::vector<std::uint64_t> first_bad_offsets;
  /// Code units U+FFFF, which the library behind takes for the end of the text.
  std::uint64_t replaced_end_marks = 0;

  static constexpr std::size_t max_bad_offsets = 8;
};

}  // namespace textimport
