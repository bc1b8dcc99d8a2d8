// SPDX-License-Identifier: MIT
//
// Runs of ASCII are widened here, everything else is converted by ICU in small pieces, so that the
// fast way is tried again soon. ICU keeps the bytes of a character that is not whole; its error
// handler is ours, because ICU's own replace bad bytes but neither count nor place them.
#include "text_import/source/encoding/decoder_internal.hpp"

#include <algorithm>
#include <array>
#include <functional>
#include <new>
#include <numeric>
#include <stdexcept>
#include <utility>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include "text_format_detection/model/options.hpp"
#include "text_import/import_error.hpp"
#include "text_import/source/encoding/ascii_internal.hpp"
#include "text_import/source/encoding/unit_count_internal.hpp"

namespace textimport {
namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr std::size_t piece_bytes = 1024;
constexpr std::size_t ascii_block_bytes = 256;  // fixed, since compilers vectorise such loops

// A piece on its way through ICU, whose error handler finds it through its context.
struct Piece {
  std::string_view bytes;
  std::uint64_t offset;
  bool is_strict;
  // What the error handler found. It must not throw through ICU, and therefore not allocate.
  std::uint64_t bad_bytes = 0;
  std::array<std::uint64_t, DecodingCounts::max_bad_offsets> first_bad_offsets = {};
  std::size_t num_bad_offsets = 0;

  void note_bad_bytes(std::uint64_t const start, std::uint64_t const length) {
    bad_bytes += length;
    if (num_bad_offsets < first_bad_offsets.size()) {
      first_bad_offsets[num_bad_offsets++] = start;
    }
  }

  /// The offset behind the bytes that ICU has taken. When it reads bytes again that came before
  /// the piece, these lie in a buffer of its own, and nothing of the piece was taken yet.
  [[nodiscard]] std::uint64_t reached(UConverterToUnicodeArgs const& arguments) const {
    std::less_equal<> const in_order;
    char const* const end = bytes.data() + bytes.size();
    if (in_order(bytes.data(), arguments.source) && in_order(arguments.source, end)) {
      return offset + static_cast<std::uint64_t>(arguments.source - bytes.data());
    }
    return offset - static_cast<std::uint64_t>(arguments.sourceLimit - arguments.source);
  }
};

/// Replaces the bytes that ICU could not convert, or stops in front of them.
void on_bad_bytes(void const* const context, UConverterToUnicodeArgs* const arguments,
                  char const* /*bytes*/, std::int32_t const length,
                  UConverterCallbackReason const reason, UErrorCode* const status) {
  if (reason > UCNV_IRREGULAR) {
    return;  // the converter is reset, closed or copied
  }
  auto& current = *static_cast<Piece*>(const_cast<void*>(context));
  auto const bad = static_cast<std::uint64_t>(length);
  current.note_bad_bytes(current.reached(*arguments) - bad, bad);
  if (current.is_strict) {
    return;  // the status keeps the error, and the conversion ends here
  }
  *status = U_ZERO_ERROR;
  char16_t const unit = replacement;
  ucnv_cbToUWriteUChars(arguments, &unit, 1, 0, status);
}

void append_ascii(std::string_view bytes, std::u16string& text) {
  std::array<char16_t, ascii_block_bytes> units;
  for (; bytes.size() >= units.size(); bytes.remove_prefix(units.size())) {
    std::copy_n(bytes.begin(), units.size(), units.begin());
    text.append(units.data(), units.size());
  }
  std::copy(bytes.begin(), bytes.end(), units.begin());
  text.append(units.data(), bytes.size());
}

}  // namespace

struct Decoder::Converter {
  explicit Converter(std::string const& encoding) : handle(nullptr, ucnv_close) {
    UErrorCode status = U_ZERO_ERROR;
    handle.reset(ucnv_open(encoding.c_str(), &status));
    if (status == U_MEMORY_ALLOCATION_ERROR) {
      throw std::bad_alloc();
    }
    if (U_FAILURE(status) != 0) {
      throw std::invalid_argument("decoder: unknown encoding " + encoding);
    }
  }

  /// Appends the text of the piece; false when it stopped at bad bytes.
  bool convert(Piece& current, bool const last, std::u16string& text) const {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setToUCallBack(handle.get(), on_bad_bytes, &current, nullptr, nullptr, &status);
    char const* source = current.bytes.data();
    char const* const source_end = source + current.bytes.size();
    std::array<char16_t, piece_bytes> units;
    do {
      status = U_ZERO_ERROR;
      char16_t* target = units.data();
      ucnv_toUnicode(handle.get(), &target, units.data() + units.size(), &source, source_end,
                     nullptr, static_cast<UBool>(last), &status);
      text.append(units.data(), target);
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    return U_SUCCESS(status) != 0;
  }

  /// True when each ASCII byte is its own character wherever a character may begin. Not so in
  /// encodings that shift by ASCII bytes, in UTF-16 and on mainframes.
  [[nodiscard]] bool maps_ascii_to_itself() const {
    std::array<char, 128> bytes{};
    std::iota(bytes.begin(), bytes.end(), '\0');
    std::array<char16_t, 2 * bytes.size()> units{};
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t const length =
        ucnv_toUChars(handle.get(), units.data(), static_cast<std::int32_t>(units.size()),
                      bytes.data(), static_cast<std::int32_t>(bytes.size()), &status);
    ucnv_reset(handle.get());
    return U_SUCCESS(status) != 0 && length == static_cast<std::int32_t>(bytes.size()) &&
           std::equal(bytes.begin(), bytes.end(), units.begin(),
                      [](char const byte, char16_t const unit) {
                        return static_cast<char16_t>(byte) == unit;
                      });
  }

  [[nodiscard]] bool is_between_characters() const {
    UErrorCode status = U_ZERO_ERROR;
    return ucnv_toUCountPending(handle.get(), &status) == 0;
  }

  /// 2 and 4 in UTF-16 and UTF-32, whose characters begin at multiples of them only.
  [[nodiscard]] std::uint64_t unit_bytes() const {
    return static_cast<std::uint64_t>(ucnv_getMinCharSize(handle.get()));
  }

  std::unique_ptr<UConverter, void (*)(UConverter*)> handle;
};

Decoder::Decoder(std::string const& encoding, std::uint64_t const offset, bool const strict,
                 std::string path)
    : encoding_(encoding),
      path_(std::move(path)),
      start_(offset),
      offset_(offset),
      strict_(strict),
      ascii_is_itself_(encoding == "UTF-8" || opened_converter().maps_ascii_to_itself()) {}

Decoder::~Decoder() = default;

Decoder::Converter& Decoder::opened_converter() {
  if (!converter_) {
    converter_ = std::make_unique<Converter>(encoding_);
  }
  return *converter_;
}

bool Decoder::is_between_characters() const {
  return !converter_ || converter_->is_between_characters();
}

void Decoder::decode(std::string_view bytes, bool const last, std::u16string& text) {
  while (!bytes.empty()) {
    if (ascii_is_itself_ && is_between_characters()) {
      std::size_t const run = ascii_run(bytes);
      append_ascii(bytes.substr(0, run), text);
      offset_ += run;
      bytes.remove_prefix(run);
    }
    if (std::size_t const piece = std::min(bytes.size(), piece_bytes); piece != 0) {
      convert(bytes.substr(0, piece), false, text);
      bytes.remove_prefix(piece);
    }
  }
  if (last && converter_) {
    convert({}, true, text);
  }
}

void Decoder::convert(std::string_view const bytes, bool const last, std::u16string& text) {
  std::size_t const start = text.size();
  Piece current{bytes, offset_, strict_};
  bool const is_converted = opened_converter().convert(current, last, text);
  offset_ += bytes.size();
  replace_end_marks(text, start);
  counts_.bad_bytes += current.bad_bytes;
  for (std::size_t i = 0; i < current.num_bad_offsets; ++i) {
    note_bad_offset(current.first_bad_offsets[i]);
  }
  if (!is_converted) {
    throw_bad_bytes();
  }
}

void Decoder::replace_end_marks(std::u16string& text, std::size_t const start) {
  std::size_t const found = count_unit(std::u16string_view(text).substr(start), textio::end_mark);
  if (found != 0) {
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), textio::end_mark,
                 replacement);
  }
  counts_.replaced_end_marks += found;
}

void Decoder::note_bad_offset(std::uint64_t const offset) {
  if (counts_.first_bad_offsets.size() < DecodingCounts::max_bad_offsets) {
    // Behind half a surrogate pair, ICU has already taken a byte of the unit that follows it.
    counts_.first_bad_offsets.push_back(offset - (offset - start_) % converter_->unit_bytes());
  }
}

void Decoder::throw_bad_bytes() const {
  if (counts_.first_bad_offsets.empty()) {
    throw std::bad_alloc();  // the only other way in which a conversion fails
  }
  std::uint64_t const offset = counts_.first_bad_offsets.front();
  throw ImportError(ImportErrorKind::BadBytes, path_,
                    "the bytes at offset " + std::to_string(offset) + " mean nothing in " +
                        encoding_ + "; name the right encoding, or read without strictness")
      .at_byte(offset);
}

}  // namespace textimport
