// SPDX-License-Identifier: MIT
//
// Searching a block: each wanted unit is compared with many units of the text at once, and what is
// found becomes one bit for each unit. The portable form is a loop that compilers make wide; where
// SSE2 is there for certain, half its instructions will do.
#include "text_format_detection/model/unit_search_internal.hpp"

#include <algorithm>

#if defined(__SSE2__) && !defined(TFD_PORTABLE_SEARCH)
#include <emmintrin.h>
#define TFD_SEARCH_WITH_SSE2
#else
#include <cstring>
#endif

namespace textio::model {

namespace {

constexpr std::size_t block_length = 64;

using Pattern = std::array<char16_t, 8>;

#ifdef TFD_SEARCH_WITH_SSE2

__m128i load(char16_t const* const units) noexcept {
  return _mm_loadu_si128(reinterpret_cast<__m128i const*>(units));
}

/// The highest bits of sixteen bytes.
std::uint64_t to_bits(__m128i const bytes) noexcept {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes));
}

/// Which of 64 units `compare_eight`, which sees eight at a time, sets all bits of.
template <class CompareEight>
std::uint64_t compare_units(char16_t const* const units, CompareEight const& compare_eight) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < block_length; i += 16) {
    bits |=
        to_bits(_mm_packs_epi16(compare_eight(load(units + i)), compare_eight(load(units + i + 8))))
        << i;
  }
  return bits;
}

/// Says which of 64 units are end marks or among `Count` wanted ones.
template <std::size_t Count>
class BlockComparison {
 public:
  BlockComparison(Pattern const* const patterns, bool const in_bytes) : in_bytes_(in_bytes) {
    for (std::size_t k = 0; k < Count; ++k) {
      patterns_[k] = load(patterns[k].data());
    }
  }

  std::uint64_t operator()(char16_t const* const units) const noexcept {
    return in_bytes_ ? compare_bytes(units) : compare_units(units, [this](__m128i const text) {
      __m128i found = _mm_cmpeq_epi16(text, end_marks());
      for (__m128i const& pattern : patterns_) {
        found = _mm_or_si128(found, _mm_cmpeq_epi16(text, pattern));
      }
      return found;
    });
  }

 private:
  static __m128i end_marks() noexcept { return _mm_set1_epi16(-1); }

  /// Sixteen units at a time, as bytes: what does not fit into one becomes 255 or, from 0x8000 on,
  /// 0. The wanted units are others; the end mark is among those that become 0.
  [[nodiscard]] std::uint64_t compare_bytes(char16_t const* const units) const noexcept {
    std::uint64_t bits = 0;
    __m128i zeros = _mm_setzero_si128();
    for (std::size_t i = 0; i < block_length; i += 16) {
      __m128i const bytes = _mm_packus_epi16(load(units + i), load(units + i + 8));
      __m128i found = _mm_cmpeq_epi8(bytes, patterns_[0]);
      for (std::size_t k = 1; k < Count; ++k) {
        found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, patterns_[k]));
      }
      zeros = _mm_or_si128(zeros, _mm_cmpeq_epi8(bytes, _mm_setzero_si128()));
      bits |= to_bits(found) << i;
    }
    if (to_bits(zeros) != 0) {
      bits |= compare_units(units,
                            [](__m128i const text) { return _mm_cmpeq_epi16(text, end_marks()); });
    }
    return bits;
  }

  __m128i patterns_[Count];  // NOLINT: of std::array, compilers warn that it loses attributes
  bool in_bytes_;
};

#else

/// The lowest bits of eight bytes that hold 0 or 1, the first byte's lowest.
std::uint64_t gather_bits(std::uint8_t const* const bytes) noexcept {
  // Moves bit 0 of byte i to bit i of the top byte; no two sums meet elsewhere either.
  constexpr std::uint64_t to_top_byte =
      std::endian::native == std::endian::little ? 0x0102040810204080 : 0x8040201008040201;
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
  return (word * to_top_byte) >> 56U;
}

/// Says which of 64 units are end marks or among `Count` wanted ones.
template <std::size_t Count>
class BlockComparison {
 public:
  BlockComparison(Pattern const* const patterns, bool const in_bytes) {
    constexpr char16_t byte = 0xFF;
    for (std::size_t k = 0; k < Count; ++k) {
      wanted_[k] = in_bytes ? patterns[k].front() & byte : patterns[k].front();
    }
  }

  std::uint64_t operator()(char16_t const* const units) const noexcept {
    std::array<std::uint8_t, block_length> is_found{};
    for (std::size_t i = 0; i < block_length; ++i) {
      bool found = units[i] == end_mark;
      for (std::size_t k = 0; k < Count; ++k) {
        found |= units[i] == wanted_[k];
      }
      is_found[i] = found ? 1 : 0;
    }
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < block_length; i += 8) {
      bits |= gather_bits(is_found.data() + i) << i;
    }
    return bits;
  }

 private:
  std::array<char16_t, Count> wanted_;
};

#endif

/// Whether no unit can be taken for another, or for the end mark, when the text is cut to bytes.
bool fit_into_bytes(std::u16string_view const units) {
  return !units.empty() && std::all_of(units.begin(), units.end(),
                                       [](char16_t const unit) { return unit > 0 && unit < 0xFF; });
}

}  // namespace

UnitSearch::UnitSearch(std::u16string_view const text, std::u16string_view const units)
    : text_(text),
      set_(UnitSet(units).with_end_mark()),
      num_units_(units.size()),
      in_bytes_(fit_into_bytes(units)) {
  for (std::size_t k = 0; k < many; ++k) {
    char16_t const unit = k < units.size() ? units[k] : unit_at(units, 0);
    patterns_[k].fill(in_bytes_ ? static_cast<char16_t>(unit << 8U | unit) : unit);
  }
}

std::size_t UnitSearch::find_anew(std::size_t const pos) noexcept {
  if (gap_start_ <= pos && pos < block_start_) {
    return first_found();
  }
  bool const lies_in_block = pos - block_start_ < block_length;
  gap_start_ = pos;
  std::size_t const start = lies_in_block ? block_start_ + block_length : pos;
  if (num_units_ <= 1) {
    search_from(start, BlockComparison<1>(patterns_.data(), in_bytes_));
  } else if (num_units_ == 2) {
    search_from(start, BlockComparison<2>(patterns_.data(), in_bytes_));
  } else if (num_units_ == 3) {
    search_from(start, BlockComparison<3>(patterns_.data(), in_bytes_));
  } else if (num_units_ <= many) {
    search_from(start, BlockComparison<many>(patterns_.data(), in_bytes_));
  } else {
    search_from(start, [this](char16_t const* const units) { return look_up(units); });
  }
  return first_found();
}

/// Makes the first block from `pos` on that holds something the current one. Behind the text there
/// are end marks, so that there always is one.
template <class SearchBlock>
void UnitSearch::search_from(std::size_t pos, SearchBlock const& search_block) noexcept {
  found_ = 0;
  for (; found_ == 0 && pos < text_.size() && text_.size() - pos >= block_length;
       pos += block_length) {
    found_ = search_block(text_.data() + pos);
    block_start_ = pos;
  }
  if (found_ == 0) {
    std::array<char16_t, block_length> units;
    units.fill(end_mark);
    text_.copy(units.data(), block_length, std::min(pos, text_.size()));
    found_ = search_block(units.data());
    block_start_ = pos;
  }
}

UnitSearch::Bits UnitSearch::look_up(char16_t const* const units) const noexcept {
  Bits found = 0;
  for (std::size_t i = 0; i < block_length; ++i) {
    found |= Bits{set_.contains(units[i])} << i;
  }
  return found;
}

}  // namespace textio::model
