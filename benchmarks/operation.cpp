// SPDX-License-Identifier: MIT
//
// Where an operation runs, and the lengths.
#include "benchmarks/operation.hpp"

#include <algorithm>
#include <array>

namespace textio::benchmarks {

bool Operation::runs_over(Shape const& shape) const {
  std::string_view rest = shapes;
  while (!rest.empty()) {
    std::size_t const end = std::min(rest.find(' '), rest.size());
    if (rest.substr(0, end) == shape.name) {
      return true;
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return shapes.empty();
}

std::span<std::size_t const> lengths() {
  static constexpr std::array<std::size_t, 4> all{1U << 10U, 1U << 16U, 1U << 20U, 1U << 23U};
  return all;
}

}  // namespace textio::benchmarks
