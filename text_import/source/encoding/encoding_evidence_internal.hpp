// SPDX-License-Identifier: MIT
//
// What the bytes of a text say about its encoding: facts, no decision.
#pragma once

#include <cstdint>
#include <string_view>

namespace textimport {

/// How far bytes are well-formed UTF-8.
struct Utf8Evidence {
  std::uint64_t sequences = 0;  ///< well-formed sequences of more than one byte
  std::uint64_t faults = 0;     ///< bytes that belong to no well-formed sequence
  bool has_escapes = false;     ///< ESC occurs, with which 7-bit encodings shift
};

/// `complete` says that nothing follows; else a sequence that the end cuts is no fault.
Utf8Evidence examine_utf8(std::string_view bytes, bool complete);

/// True when `bytes` are UTF-32 in the given byte order beyond reasonable doubt.
bool looks_like_utf32(std::string_view bytes, bool big_endian);

/// True when the NUL bytes stand where UTF-16 text in the given byte order has them.
bool looks_like_utf16(std::string_view bytes, bool big_endian);

}  // namespace textimport
