// SPDX-License-Identifier: MIT
#include "text_import/report/rule_lists_internal.hpp"

#include <algorithm>

#include <fmt/format.h>

#include "text_import/report/wrapping.hpp"

namespace textimport::reporting {

namespace {

/// Positions in the list as a reader counts them, runs taken together: "#1, #3-7".
std::string position_ranges(std::vector<std::size_t> const& positions) {
  std::vector<std::string> ranges;
  for (std::size_t start = 0; start < positions.size();) {
    std::size_t end = start + 1;
    while (end < positions.size() && positions[end] == positions[end - 1] + 1) {
      ++end;
    }
    std::size_t const first = positions[start] + 1;
    std::size_t const last = positions[end - 1] + 1;
    ranges.push_back(first == last ? fmt::format("#{}", first)
                                   : fmt::format("#{}-{}", first, last));
    start = end;
  }
  return fmt::format("{}", fmt::join(ranges, ", "));
}

/// Readings grouped by their numbers: "0: #2, #4; 1: #3".
std::string grouped_by_number(std::vector<NumberedReading> readings) {
  std::ranges::stable_sort(readings, {}, &NumberedReading::number);
  std::vector<std::string> groups;
  for (std::size_t start = 0; start < readings.size();) {
    std::string const& number = readings[start].shown;
    std::vector<std::size_t> positions;
    while (start < readings.size() && readings[start].shown == number) {
      positions.push_back(readings[start++].position);
    }
    groups.push_back(fmt::format("{}: {}", number, position_ranges(positions)));
  }
  return fmt::format("{}", fmt::join(groups, "; "));
}

}  // namespace

std::string numbered_list(std::vector<NumberedReading> readings) {
  constexpr std::size_t few = 6;
  if (readings.size() > few) {
    return grouped_by_number(std::move(readings));
  }
  std::vector<std::string> names;
  names.reserve(readings.size());
  for (NumberedReading const& reading : readings) {
    names.push_back(fmt::format("#{} {}: {}", reading.position + 1, reading.name, reading.shown));
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string rule_heading(std::size_t const number, std::string_view const rule,
                         std::string_view const meaning, std::size_t const width) {
  constexpr std::size_t most = 24;  // of the indent, so that the meaning has room
  std::string const start = fmt::format("  {}. {}: ", number, rule);
  return start.size() <= most ? start + wrapped(meaning, start.size(), width)
                              : "  " + wrapped(start.substr(2) + std::string(meaning), 5, width);
}

}  // namespace textimport::reporting
