// SPDX-License-Identifier: MIT
//
// Which encoding the bytes of a text are in, and why: a list of tests, the first that applies
// decides. Only the last one guesses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/export.hpp"

namespace textimport {

/// The test that decided, in the order in which they are tried.
enum class EncodingReason : std::uint8_t {
  Given,          ///< the caller named it
  ByteOrderMark,  ///< the bytes begin with the mark of a Unicode encoding
  NulPattern,     ///< NUL bytes stand where UTF-16 or UTF-32 has them
  OnlyAscii,      ///< nothing but ASCII; answered as UTF-8
  ValidUtf8,      ///< all of it is well-formed UTF-8, and not only ASCII
  MostlyUtf8,     ///< a guess: UTF-8 but for few bytes
  Statistics,     ///< a guess: the frequencies of bytes and pairs of bytes
  Fallback,       ///< a guess: no test answered; read as windows-1252
};

/// The word for a reason in machine-readable output: "given", "byte-order-mark" ...
[[nodiscard]] TEXT_IMPORT_API char const* name_of(EncodingReason reason) noexcept;

/// An encoding and why it was chosen.
struct EncodingFinding {
  /// "UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE", or the usual name of another one
  /// ("windows-1252", "KOI8-R", "Shift_JIS", "GB18030" ...).
  std::string name;
  EncodingReason reason = EncodingReason::OnlyAscii;
  /// The reason as half a sentence: "the file begins with a byte-order mark".
  std::string explanation;
  /// The number of bytes of the byte-order mark, which is not part of the text; 0 without one.
  std::size_t mark_bytes = 0;

  /// True for the reasons that may be wrong.
  [[nodiscard]] bool is_guess() const noexcept { return reason >= EncodingReason::MostlyUtf8; }
};

/// Finds the encoding of a text from its first bytes. `complete` says that `head` is all of it;
/// else a character that the end of `head` cuts is no fault.
/// Linear; deterministic; throws nothing but allocation failure.
[[nodiscard]] TEXT_IMPORT_API EncodingFinding find_encoding(std::string_view head, bool complete);

/// The encoding that the caller named, by any of its usual names, upper or lower case alike. A
/// mark of that encoding at the start of `head` is skipped. For "UTF-16" and "UTF-32" the byte
/// order comes from the mark, else from the pattern of NUL bytes, else it is big-endian.
/// Throws ImportError (UnknownEncoding) with `path` and the names that are near.
[[nodiscard]] TEXT_IMPORT_API EncodingFinding given_encoding(std::string const& name,
                                                             std::string_view head,
                                                             std::string const& path);

/// The standard names of the known encodings, sorted. Others are known by their vendors' names.
[[nodiscard]] TEXT_IMPORT_API std::vector<std::string> encoding_names();

}  // namespace textimport
