// SPDX-License-Identifier: MIT
//
// Header-line detection. Data lines deviate little from the typical number of fields, header lines
// a lot: the running sum of the deviations rises over the header and is flat behind it. Squared and
// divided by the number of lines it covers, it has its sharpest downward bend at the last header
// line, where the negated second difference is largest.
#include "text_format_detection/detection/header_lines.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace textio::detection {

namespace {

// What a line's deviation counts at most where blanks separate the fields.
constexpr double largest_blank_deviation = 2.0;

/// Over the lines from the first up to line i: the sum of the deviations, and the number of lines
/// that do not deviate.
struct RunningTotals {
  std::vector<double> deviation;
  std::vector<std::size_t> zeros;
};

RunningTotals running_totals(std::vector<std::size_t> const& deviations,
                             bool const blank_delimited) {
  RunningTotals totals;
  totals.deviation.reserve(deviations.size());
  totals.zeros.reserve(deviations.size());
  double sum = 0.0;
  std::size_t zeros = 0;
  for (std::size_t i = 0; i < deviations.size(); ++i) {
    auto const deviation = static_cast<double>(deviations[i]);
    // The first line counts in full: a title of many words is a header all the same.
    sum += blank_delimited && i > 0 ? std::min(largest_blank_deviation, deviation) : deviation;
    zeros += static_cast<std::size_t>(deviations[i] == 0);
    totals.deviation.push_back(sum);
    totals.zeros.push_back(zeros);
  }
  return totals;
}

/// The lines to examine: those up to the last one that deviates, the very last entry not looked at.
/// Nothing when that leaves no more than `minimum`.
std::optional<std::size_t> examined_lines(std::vector<std::size_t> const& deviations,
                                          std::size_t const minimum) {
  for (std::size_t n = deviations.size() - 1; n > minimum; --n) {
    if (deviations[n - 1] != 0) {
      return n;
    }
  }
  return std::nullopt;
}

/// Fewer of them, until at most half of the lines are data. Nothing as above.
std::optional<std::size_t> shrink_to_mostly_headers(std::size_t n, std::size_t const minimum,
                                                    std::vector<std::size_t> const& zeros) {
  while (zeros[n - 1] > n / 2) {
    if (n - 1 == minimum) {
      return std::nullopt;
    }
    --n;
  }
  return n;
}

/// The weighted sum of each value, of two at least, and its neighbours; an end stands in for its
/// missing neighbour. (The last value weighs its left neighbour by `next`; the weights in use are
/// symmetric.)
std::vector<double> three_point_filter(std::vector<double> const& values, double const previous,
                                       double const own, double const next) {
  std::size_t const count = values.size();
  std::vector<double> result(count);
  result.front() = (own + previous) * values[0] + next * values[1];
  for (std::size_t i = 1; i + 1 < count; ++i) {
    result[i] = previous * values[i - 1] + own * values[i] + next * values[i + 1];
  }
  result.back() = (own + next) * values[count - 1] + next * values[count - 2];
  return result;
}

/// The number of lines up to and including the one, among the first n, at which the squared running
/// mean bends most.
std::size_t lines_up_to_sharpest_bend(std::vector<double> running_sums, std::size_t const n) {
  for (std::size_t i = 0; i < running_sums.size(); ++i) {
    double const sum = running_sums[i];
    running_sums[i] = sum / static_cast<double>(i + 1) * sum;
  }
  std::vector<double> const bend = three_point_filter(running_sums, -1.0, 2.0, -1.0);
  auto const sharpest =
      std::max_element(bend.begin(), bend.begin() + static_cast<std::ptrdiff_t>(n));
  return static_cast<std::size_t>(sharpest - bend.begin()) + 1;
}

}  // namespace

std::size_t get_header_lines(std::vector<std::size_t> const& deviations, std::size_t const minimum,
                             bool const blank_delimited) {
  if (deviations.size() < 2) {
    return minimum;
  }
  if (deviations.size() == 2) {
    return deviations[0] == deviations[1] ? 0 : 1;
  }
  std::optional<std::size_t> n = examined_lines(deviations, minimum);
  if (!n) {
    return minimum;
  }
  RunningTotals totals = running_totals(deviations, blank_delimited);
  n = shrink_to_mostly_headers(*n, minimum, totals.zeros);
  if (!n) {
    return minimum;
  }
  std::size_t header_lines =
      std::max(minimum, lines_up_to_sharpest_bend(std::move(totals.deviation), *n));
  while (header_lines > 0 && deviations[header_lines - 1] == 0) {
    --header_lines;  // the last header line must itself deviate
  }
  bool const covers_too_much = 3 * header_lines > 2 * deviations.size();
  return covers_too_much ? minimum : header_lines;
}

}  // namespace textio::detection
