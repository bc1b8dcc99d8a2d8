// SPDX-License-Identifier: MIT
#include "text_import/report/sampled_part_internal.hpp"

#include <algorithm>
#include <span>
#include <vector>

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

/// Adds a record, which has fields.
void add_record(SampledPart& part, Analysis const& analysis,
                std::span<textio::Field const> const record) {
  if (is_data(analysis.format.region, line_of(analysis, record.front().data()))) {
    ++part.num_records;
    part.num_whole_records += record.size() == analysis.format.columns.size() ? 1U : 0U;
  }
  textio::Field const& last = record.back();
  part.num_lines = line_of(analysis, last.data() + last.length()) + 1;
}

}  // namespace

SampledPart sampled_part(Analysis const& analysis) {
  std::size_t const all = analysis.lines.count();
  SampledPart part;
  auto const& fields = *analysis.strategy->field_array();
  for (std::size_t i = 0; i < fields.num_records() && all > 0; ++i) {
    if (auto const record = fields.record(i); !record.empty()) {
      add_record(part, analysis, record);
    }
  }
  // Where the data are seen to end, all lines behind them have been looked at too.
  if (analysis.format.region.end_line) {
    part.num_lines = all;
  }
  part.is_all = !analysis.evidence.goes_on && part.num_lines == all;
  return part;
}

}  // namespace textimport::reporting
