// SPDX-License-Identifier: MIT
//
// Most text is ASCII for the most part: finding where it ends, eight bytes at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace textimport {

inline bool is_ascii(char const byte) {
  return (byte & 0x80) == 0;
}

/// The number of ASCII bytes at the start of `bytes`.
inline std::size_t ascii_run(std::string_view const bytes) {
  constexpr std::uint64_t high_bits = 0x8080808080808080U;
  std::size_t run = 0;
  for (std::uint64_t word = 0; run + sizeof word <= bytes.size(); run += sizeof word) {
    std::memcpy(&word, bytes.data() + run, sizeof word);
    if ((word & high_bits) != 0) {
      break;
    }
  }
  while (run < bytes.size() && is_ascii(bytes[run])) {
    ++run;
  }
  return run;
}

}  // namespace textimport
