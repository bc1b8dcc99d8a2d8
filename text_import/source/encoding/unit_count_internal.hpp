// SPDX-License-Identifier: MIT
//
// Counting code units of a whole text. Loops of a fixed length without branches are what a compiler
// turns into instructions that take many units at a time.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace textimport {

inline constexpr std::size_t block_units = 256;

/// A block and the unit behind it.
using text_block = std::span<char16_t const, block_units + 1>;

template <class Test>
std::size_t count_in_block(text_block const units, Test const test) {
  std::uint16_t count = 0;  // as wide as a unit, so that a vector of units has one count for each
  for (std::size_t i = 0; i < block_units; ++i) {
    count = static_cast<std::uint16_t>(count + (test(units[i], units[i + 1]) ? 1 : 0));
  }
  return count;
}

/// How many units of `text` pass `test`, which is given the unit and the one behind it, a blank
/// behind the last. No blank may pass.
template <class Test>
std::size_t count_units(std::u16string_view text, Test const test) {
  std::size_t count = 0;
  std::array<char16_t, block_units + 1> block;
  for (; text.size() > block_units; text.remove_prefix(block_units)) {
    count += count_in_block(text_block(text.data(), block_units + 1), test);
  }
  std::fill(std::copy(text.begin(), text.end(), block.begin()), block.end(), u' ');
  return count + count_in_block(block, test);
}

/// How many units of `text` are `wanted`, which is no blank.
inline std::size_t count_unit(std::u16string_view const text, char16_t const wanted) {
  return count_units(text,
                     [wanted](char16_t const unit, char16_t /*next*/) { return unit == wanted; });
}

}  // namespace textimport
