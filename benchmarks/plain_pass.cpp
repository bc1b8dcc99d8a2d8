// SPDX-License-Identifier: MIT
//
// The plain pass: a vector of the text at a time, the rest unit by unit.
#include "benchmarks/plain_pass.hpp"

#include <experimental/simd>

namespace textio::benchmarks {

namespace {

std::size_t sum_of_line_feeds(std::u16string_view const text, std::size_t const start,
                              std::size_t const end) {
  std::size_t sum = 0;
  for (std::size_t pos = start; pos < end; ++pos) {
    sum += text[pos] == u'\n' ? pos : 0;
  }
  return sum;
}

}  // namespace

std::size_t plain_pass(std::u16string_view const text) {
  using Vector = std::experimental::native_simd<char16_t>;
  Vector const wanted(u'\n');
  std::size_t sum = 0;
  std::size_t pos = 0;
  for (; pos + Vector::size() <= text.size(); pos += Vector::size()) {
    auto const found = Vector(text.data() + pos, std::experimental::element_aligned) == wanted;
    if (!std::experimental::any_of(found)) {
      continue;
    }
    auto const first = static_cast<std::size_t>(std::experimental::find_first_set(found));
    auto const last = static_cast<std::size_t>(std::experimental::find_last_set(found));
    sum += pos + first;
    if (last != first) {
      sum += sum_of_line_feeds(text, pos + first + 1, pos + last + 1);
    }
  }
  return sum + sum_of_line_feeds(text, pos, text.size());
}

}  // namespace textio::benchmarks
