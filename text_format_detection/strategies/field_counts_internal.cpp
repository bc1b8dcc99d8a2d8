// SPDX-License-Identifier: MIT
//
// Typical counts, deviations and positions of lines.
#include "text_format_detection/strategies/field_counts_internal.hpp"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "text_format_detection/model/text_view_internal.hpp"

namespace textio::strategies {

namespace {

std::ptrdiff_t offset(std::size_t const position) {
  return static_cast<std::ptrdiff_t>(position);
}

/// The entry at position ceil(size / 2) - 1 of the sorted values; there is at least one.
std::size_t lower_median(std::vector<std::size_t> values) {
  auto const middle = values.begin() + offset((values.size() + 1) / 2 - 1);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

std::size_t count_single_field_lines(std::vector<std::size_t> const& counts) {
  auto const other =
      std::find_if(counts.begin(), counts.end(), [](std::size_t const n) { return n != 1; });
  return static_cast<std::size_t>(std::distance(counts.begin(), other));
}

std::size_t typical_field_count(std::vector<std::size_t> const& counts, std::size_t const skip) {
  // Up to this many lines, one line of several fields is enough; above, a third must have them.
  constexpr std::size_t few_lines = 10;
  if (skip >= counts.size()) {
    return 1;
  }
  auto const first = counts.begin() + offset(skip);
  auto const num_lines =
      static_cast<std::size_t>(counts.end() - first - std::count(first, counts.end(), 0U));
  std::vector<std::size_t> several;
  several.reserve(num_lines);
  std::copy_if(first, counts.end(), std::back_inserter(several),
               [](std::size_t const n) { return n >= 2; });
  if (several.empty() || (num_lines > few_lines && several.size() < num_lines / 3)) {
    return 1;
  }
  return lower_median(std::move(several));
}

std::vector<std::size_t> field_count_deviations(std::vector<std::size_t> const& counts,
                                                std::size_t const typical) {
  auto const end = std::find(counts.rbegin(), counts.rend(), typical).base();
  std::vector<std::size_t> deviations;
  deviations.reserve(static_cast<std::size_t>(end - counts.begin()));
  for (auto count = counts.begin(); count != end; ++count) {
    if (*count != 0) {
      deviations.push_back(distance(*count, typical));
    }
  }
  return deviations;
}

std::size_t to_line_index(std::size_t h, std::vector<std::size_t> const& empty_lines,
                          std::vector<std::size_t> const& counts) {
  for (std::size_t const empty_line : empty_lines) {
    if (h >= empty_line) {
      h = model::saturated_sum(h, 1);
    }
  }
  while (h < counts.size() && counts[h] < 2) {
    ++h;
  }
  return h;
}

double mean_from(std::vector<std::size_t> const& values, std::size_t const first) {
  auto const sum = std::accumulate(values.begin() + offset(first), values.end(), std::size_t{0});
  return static_cast<double>(sum) / static_cast<double>(values.size() - first);
}

}  // namespace textio::strategies
