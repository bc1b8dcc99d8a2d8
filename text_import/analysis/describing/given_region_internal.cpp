// SPDX-License-Identifier: MIT
//
// What the caller says of single lines comes first. A number of header lines says where the data
// begin and nothing else; a Format says all of it, and
// its names stand as far above the data as they did in its own file.
#include "text_import/analysis/describing/given_region_internal.hpp"

#include <algorithm>

#include "text_import/analysis/describing/region_rules_internal.hpp"

namespace textimport::analysis {

namespace {

std::vector<std::size_t> moved_name_lines(Region const& region, std::size_t const first) {
  std::vector<std::size_t> moved;
  for (std::size_t const line : region.name_lines) {
    std::size_t const above = region.first_line - std::min(line, region.first_line);
    if (above > 0 && above <= first) {
      moved.push_back(first - above);
    }
  }
  return moved;
}

GivenRegion region_of_format(Task const& task, LineIndex const& lines) {
  GivenRegion given;
  Region const& region = task.request.format->region;
  given.first = find_start(region.start, lines);
  given.start_is_missing = !given.first;
  if (given.first) {
    given.end = find_end(region.end, lines, *given.first, task.goes_on);
    given.name_lines = moved_name_lines(region, *given.first);
  }
  return given;
}

}  // namespace

GivenRegion find_given_region(Task const& task, LineIndex const& lines) {
  Request const& request = task.request;
  bool const is_by_format = request.format && !request.header_lines;
  GivenRegion given = is_by_format ? region_of_format(task, lines) : GivenRegion();
  if (request.header_lines) {
    given.first = std::min(*request.header_lines, lines.count());
  }
  if (request.name_lines) {
    given.name_lines = request.name_lines;
  }
  if (request.last_line) {
    given.end = std::min(*request.last_line + 1, lines.count());
  }
  return given;
}

}  // namespace textimport::analysis
