// SPDX-License-Identifier: MIT
//
// Finding the next of a few code units, a block of the text at a time. Scans spend most of their
// time here.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::model {

/// A walk over one text for the places of any of a set of code units, and for the text's end.
/// What a block holds is found out once, so that near places cost next to nothing: positions are
/// best asked for in ascending order.
class UnitSearch {
 public:
  /// The text has to outlive the search.
  UnitSearch(std::u16string_view text, std::u16string_view units);

  /// The first position from `pos` on that holds one of the units; the end of the text without one
  /// (its first end mark, or its length; `pos` when that lies behind).
  [[nodiscard]] std::size_t find(std::size_t const pos) noexcept {
    std::size_t const offset = pos - block_start_;
    Bits const rest = offset < block_length ? found_ >> offset : 0;
    return rest != 0 ? pos + static_cast<std::size_t>(std::countr_zero(rest)) : find_anew(pos);
  }

 private:
  static constexpr std::size_t block_length = 64;
  // Up to this many units are each compared with a whole block.
  static constexpr std::size_t many = 8;

  /// One bit for each code unit of a block, the lowest for the first.
  using Bits = std::uint64_t;

  [[nodiscard]] std::size_t first_found() const noexcept {
    return block_start_ + static_cast<std::size_t>(std::countr_zero(found_));
  }

  [[nodiscard]] std::size_t find_anew(std::size_t pos) noexcept;
  template <class SearchBlock>
  void search_from(std::size_t pos, SearchBlock const& search_block) noexcept;
  [[nodiscard]] Bits look_up(char16_t const* units) const noexcept;

  std::u16string_view text_;
  // The block searched last; before it, from the position that was asked for, there is nothing.
  // None so far: no position lies in one that begins here.
  std::size_t block_start_ = unknown_count - block_length;
  Bits found_ = 0;
  std::size_t gap_start_ = unknown_count;
  UnitSet set_;
  std::size_t num_units_;
  // Each unit eight times, to be compared with as many at once; where the text may be cut to bytes
  // for that, in both bytes of each. The first unit stands in free places.
  bool in_bytes_;
  alignas(16) std::array<std::array<char16_t, 8>, many> patterns_;
};

}  // namespace textio::model
