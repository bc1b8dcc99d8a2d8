// SPDX-License-Identifier: MIT
//
// How far apart two words are, for whoever offers a name in the place of a mistyped one.
#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

namespace textimport {

/// The number of bytes to insert, drop or change that make one word of the other. Takes time in
/// the product of their lengths.
[[nodiscard]] inline std::size_t edit_distance(std::string_view const a, std::string_view const b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      std::size_t const changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace textimport
