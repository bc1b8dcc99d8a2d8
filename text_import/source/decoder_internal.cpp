// SPDX-License-Identifier: MIT
//
// Runs of ASCII are widened here, everything else is converted by ICU in small pieces, so that the
// fast way is tried again soon. ICU keeps the bytes of a character that is not whole; its error
// handler is ours, because ICU's own replace bad bytes but neither count nor place them.
#include "text_import/source/decoder_internal.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <stdexcept>
#include <utility>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include "text_format_detection/model/options.hpp"
#include "text_import/import_error.hpp"

namespace textimport {
namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr std::size_t piece_bytes = 1024;

// Where the piece that ICU is converting lies; the error handler finds it through its context.
struct piece_position {
  decoder* owner;
  bool strict;
  char const* start;
  std::uint64_t offset;
};

/// Replaces the bytes that ICU could not convert, or stops in front of them.
void on_bad_bytes(void const* const context, UConverterToUnicodeArgs* const arguments,
                  char const* /*bytes*/, std::int32_t const length,
                  UConverterCallbackReason const reason, UErrorCode* const status) {
  if (reason > UCNV_IRREGULAR) {
    return;  // the converter is reset, closed or copied
  }
  auto const& piece = *static_cast<piece_position const*>(context);
  auto const passed = static_cast<std::uint64_t>(arguments->source - piece.start);
  auto const bad = static_cast<std::size_t>(length);
  piece.owner->note_bad_bytes(piece.offset + passed - bad, bad);
  if (piece.strict) {
    return;  // the status keeps the error, and the conversion ends here
  }
  *status = U_ZERO_ERROR;
  char16_t const unit = replacement;
  ucnv_cbToUWriteUChars(arguments, &unit, 1, 0, status);
}

std::size_t ascii_run(std::string_view const bytes) {
  constexpr std::uint64_t high_bits = 0x8080808080808080U;
  std::size_t run = 0;
  for (std::uint64_t word = 0; run + sizeof word <= bytes.size(); run += sizeof word) {
    std::memcpy(&word, bytes.data() + run, sizeof word);
    if ((word & high_bits) != 0) {
      break;
    }
  }
  while (run < bytes.size() && static_cast<unsigned char>(bytes[run]) < 0x80) {
    ++run;
  }
  return run;
}

void append_ascii(std::string_view const bytes, std::u16string& text) {
  std::size_t const start = text.size();
  text.resize(start + bytes.size());
  std::transform(bytes.begin(), bytes.end(), text.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char const byte) { return static_cast<char16_t>(byte); });
}

}  // namespace

struct decoder::converter {
  explicit converter(std::string const& encoding) {
    UErrorCode status = U_ZERO_ERROR;
    handle = ucnv_open(encoding.c_str(), &status);
    if (status == U_MEMORY_ALLOCATION_ERROR) {
      throw std::bad_alloc();
    }
    if (U_FAILURE(status) != 0) {
      throw std::invalid_argument("decoder: unknown encoding " + encoding);
    }
  }

  converter(converter const&) = delete;
  converter(converter&&) = delete;
  converter& operator=(converter const&) = delete;
  converter& operator=(converter&&) = delete;

  ~converter() { ucnv_close(handle); }

  /// True when each ASCII byte is its own character wherever a character may begin. Not so in
  /// encodings that shift by ASCII bytes, in UTF-16 and on mainframes.
  [[nodiscard]] bool maps_ascii_to_itself() const {
    std::array<char, 128> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      bytes[i] = static_cast<char>(i);
    }
    std::array<char16_t, 2 * bytes.size()> units{};
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const length =
        ucnv_toUChars(handle, units.data(), static_cast<std::int32_t>(units.size()), bytes.data(),
                      static_cast<std::int32_t>(bytes.size()), &status);
    ucnv_reset(handle);
    return U_SUCCESS(status) != 0 && length == static_cast<std::int32_t>(bytes.size()) &&
           std::equal(bytes.begin(), bytes.end(), units.begin(),
                      [](char const b, char16_t const u) { return static_cast<char16_t>(b) == u; });
  }

  [[nodiscard]] bool between_characters() const {
    UErrorCode status = U_ZERO_ERROR;
    return ucnv_toUCountPending(handle, &status) == 0;
  }

  /// 2 and 4 in UTF-16 and UTF-32, whose characters begin at their multiples only.
  [[nodiscard]] std::uint64_t unit_bytes() const {
    return static_cast<std::uint64_t>(ucnv_getMinCharSize(handle));
  }

  UConverter* handle = nullptr;
};

decoder::decoder(std::string const& encoding, std::uint64_t const offset, bool const strict,
                 std::string path)
    : converter_(std::make_unique<converter>(encoding)),
      encoding_(encoding),
      path_(std::move(path)),
      start_(offset),
      offset_(offset),
      strict_(strict),
      ascii_is_itself_(converter_->maps_ascii_to_itself()) {}

decoder::~decoder() = default;

void decoder::decode(std::string_view bytes, bool const last, std::u16string& text) {
  while (!bytes.empty()) {
    if (ascii_is_itself_ && converter_->between_characters()) {
      std::size_t const run = ascii_run(bytes);
      append_ascii(bytes.substr(0, run), text);
      offset_ += run;
      bytes.remove_prefix(run);
    }
    std::size_t const piece = std::min(bytes.size(), piece_bytes);
    convert(bytes.substr(0, piece), false, text);
    bytes.remove_prefix(piece);
  }
  if (last) {
    convert({}, true, text);
  }
}

void decoder::convert(std::string_view const bytes, bool const last, std::u16string& text) {
  piece_position const piece{this, strict_, bytes.data(), offset_};
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setToUCallBack(converter_->handle, on_bad_bytes, &piece, nullptr, nullptr, &status);
  char const* source = bytes.data();
  char const* const source_end = source + bytes.size();
  std::size_t const start = text.size();
  std::array<char16_t, piece_bytes> units;
  do {
    status = U_ZERO_ERROR;
    char16_t* target = units.data();
    ucnv_toUnicode(converter_->handle, &target, units.data() + units.size(), &source, source_end,
                   nullptr, static_cast<UBool>(last), &status);
    text.append(units.data(), target);
  } while (status == U_BUFFER_OVERFLOW_ERROR);
  offset_ += bytes.size();
  replace_end_marks(text, start);
  if (U_FAILURE(status) != 0) {
    throw_bad_bytes();
  }
}

void decoder::replace_end_marks(std::u16string& text, std::size_t const start) {
  for (std::size_t i = start; i < text.size(); ++i) {
    if (text[i] == textio::end_mark) {
      text[i] = replacement;
      ++counts_.replaced_end_marks;
    }
  }
}

void decoder::note_bad_bytes(std::uint64_t const offset, std::size_t const length) {
  counts_.bad_bytes += length;
  if (counts_.first_bad_offsets.size() < decoding_counts::max_bad_offsets) {
    // Behind half a surrogate pair, ICU has already taken a byte of the unit that follows it.
    counts_.first_bad_offsets.push_back(offset - (offset - start_) % converter_->unit_bytes());
  }
}

void decoder::throw_bad_bytes() const {
  if (counts_.first_bad_offsets.empty()) {
    throw std::bad_alloc();  // the only other way in which a conversion fails
  }
  std::uint64_t const offset = counts_.first_bad_offsets.front();
  throw import_error(import_error_kind::BadBytes, path_,
                     "the bytes at offset " + std::to_string(offset) + " mean nothing in " +
                         encoding_ + "; name the right encoding, or read without strictness")
      .at_byte(offset);
}

}  // namespace textimport
