// SPDX-License-Identifier: MIT
#include "text_import/report/sampled_part_internal.hpp"

#include <algorithm>

#include "text_format_detection/model/field_array.hpp"

namespace textimport::reporting {

namespace {

/// The line on which a position of the text stands that the views of fields point to.
std::size_t line_of(Analysis const& analysis, char16_t const* const place) {
  auto const offset = static_cast<std::size_t>(place - analysis.lines.text().data());
  return analysis.lines.line_at(offset);
}

bool holds(std::vector<std::size_t> const& lines, std::size_t const line) {
  return std::ranges::binary_search(lines, line);
}

bool is_data(Region const& region, std::size_t const line) {
  return line >= region.first_line && (!region.end_line || line < *region.end_line) &&
         !holds(region.group_lines, line) && !holds(region.total_lines, line) &&
         !holds(region.other_lines, line);
}

}  // namespace

SampledPart sampled_part(Analysis const& analysis) {
  Region const& region = analysis.format.region;
  std::size_t const all = analysis.lines.count();
  SampledPart part;
  if (analysis.strategy && analysis.strategy->field_array() && all > 0) {
    auto const& fields = *analysis.strategy->field_array();
    for (std::size_t i = 0; i < fields.num_records(); ++i) {
      if (auto const record = fields.record(i); !record.empty()) {
        part.num_records += is_data(region, line_of(analysis, record.front().data())) ? 1 : 0;
        textio::Field const& last = record.back();
        part.num_lines = line_of(analysis, last.data() + last.length()) + 1;
      }
    }
  }
  // Where the data are seen to end, all lines behind them have been looked at too.
  if (region.end_line) {
    part.num_lines = all;
  }
  part.is_all = !analysis.evidence.goes_on && part.num_lines == all;
  return part;
}

}  // namespace textimport::reporting
