// SPDX-License-Identifier: MIT
#include "text_import/source/encoding/encoding_evidence_internal.hpp"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text_import/source/encoding/ascii_internal.hpp"

namespace textimport {
namespace {

constexpr char escape = '\x1B';

unsigned char byte_at(std::string_view const bytes, std::size_t const i) {
  return static_cast<unsigned char>(bytes[i]);
}

// The well-formed sequences of more than one byte: the first byte, and the range of the second,
// which is narrower where a sequence would be too long, a surrogate or above U+10FFFF. Every
// further byte is 80 to BF.
struct LeadRule {
  unsigned char first;
  unsigned char last;
  unsigned char second_min;
  unsigned char second_max;
  std::size_t length;
};

constexpr std::array<LeadRule, 8> lead_rules = {{
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
}};

// A sequence at the start of some bytes: `length` bytes of it are there and right, it has
// `full_length`, which is 0 when no sequence begins so.
struct Utf8Sequence {
  std::size_t length = 0;
  std::size_t full_length = 0;
};

Utf8Sequence sequence_at(std::string_view const bytes) {
  unsigned char const lead = byte_at(bytes, 0);
  auto const* const rule =
      std::find_if(lead_rules.begin(), lead_rules.end(),
                   [lead](LeadRule const& r) { return lead >= r.first && lead <= r.last; });
  if (rule == lead_rules.end()) {
    return {};
  }
  Utf8Sequence sequence{1, rule->length};
  std::size_t const present = std::min(rule->length, bytes.size());
  for (; sequence.length < present; ++sequence.length) {
    unsigned char const byte = byte_at(bytes, sequence.length);
    unsigned char const min = sequence.length == 1 ? rule->second_min : 0x80;
    unsigned char const max = sequence.length == 1 ? rule->second_max : 0xBF;
    if (byte < min || byte > max) {
      break;
    }
  }
  return sequence;
}

char32_t unit_at(std::string_view const bytes, std::size_t const start, std::size_t const width,
                 bool const big_endian) {
  char32_t unit = 0;
  for (std::size_t i = 0; i < width; ++i) {
    unit = unit << 8U | byte_at(bytes, start + (big_endian ? i : width - 1 - i));
  }
  return unit;
}

bool is_surrogate(char32_t const unit) {
  return unit >= 0xD800 && unit <= 0xDFFF;
}

bool is_space(unsigned char const byte) {
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Counts what tells UTF-16 from other bytes with NULs among them.
struct Utf16Evidence {
  std::size_t units = 0;
  std::size_t high_nuls = 0;     // only the high byte is NUL: ASCII or Latin-1
  std::size_t low_nuls = 0;      // only the low byte is NUL: hardly any text
  std::size_t spaces = 0;        // units that are a blank, a tab or part of a line ending
  std::size_t stray_spaces = 0;  // the same bytes inside other units
  bool is_well_formed = true;    // surrogates come in pairs, and no end mark
  bool expects_trail = false;

  void add(char32_t const unit) {
    auto const high = static_cast<unsigned char>(unit >> 8U);
    auto const low = static_cast<unsigned char>(unit & 0xFFU);
    ++units;
    high_nuls += high == 0 && low != 0 ? 1 : 0;
    low_nuls += low == 0 && high != 0 ? 1 : 0;
    if (high == 0 && is_space(low)) {
      ++spaces;
    } else if (is_space(high) || is_space(low)) {
      ++stray_spaces;
    }
    bool const is_trail = unit >= 0xDC00 && unit <= 0xDFFF;
    is_well_formed = is_well_formed && is_trail == expects_trail && unit < 0xFFFE;
    expects_trail = is_surrogate(unit) && !is_trail;
  }
};

}  // namespace

Utf8Evidence examine_utf8(std::string_view const bytes, bool const complete) {
  Utf8Evidence evidence;
  evidence.has_escapes = bytes.find(escape) != std::string_view::npos;
  for (std::size_t i = ascii_run(bytes); i < bytes.size(); i += ascii_run(bytes.substr(i))) {
    Utf8Sequence const sequence = sequence_at(bytes.substr(i));
    bool const is_cut = i + sequence.length == bytes.size() && sequence.length > 0;
    if (sequence.full_length != 0 && sequence.length == sequence.full_length) {
      ++evidence.sequences;
    } else if (!is_cut || complete) {
      ++evidence.faults;
    }
    i += std::max<std::size_t>(sequence.length, 1);
  }
  return evidence;
}

bool looks_like_utf32(std::string_view const bytes, bool const big_endian) {
  std::size_t nuls = 0;
  std::size_t rare = 0;  // beyond the basic plane, where hardly any text is at home
  for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4) {
    char32_t const unit = unit_at(bytes, i, 4, big_endian);
    if (unit > 0x10FFFF || is_surrogate(unit)) {
      return false;
    }
    nuls += unit == 0 ? 1 : 0;
    rare += unit > 0xFFFF ? 1 : 0;
  }
  return bytes.size() >= 4 && nuls <= bytes.size() / 16 && rare <= bytes.size() / 8;
}

bool looks_like_utf16(std::string_view const bytes, bool const big_endian) {
  Utf16Evidence evidence;
  for (std::size_t i = 0; i + 2 <= bytes.size() && evidence.is_well_formed; i += 2) {
    evidence.add(unit_at(bytes, i, 2, big_endian));
  }
  return evidence.is_well_formed && evidence.units >= 2 &&
         evidence.high_nuls * 16 >= evidence.units &&
         evidence.low_nuls * 20 <= evidence.high_nuls && evidence.stray_spaces <= evidence.spaces;
}

}  // namespace textimport
