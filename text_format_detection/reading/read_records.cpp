// SPDX-License-Identifier: MIT
//
// The reading loops for callers: the field limit, and what was consumed.
#include "text_format_detection/reading/read_records.hpp"

#include <algorithm>

#include "text_format_detection/reading/read_with_mode_internal.hpp"

namespace textio {

ReadSummary read_records(parser::options const& options, enums::StrategyMode const mode,
                         Field const& text, std::size_t const record_count,
                         std::size_t const line_limit, FieldArray& fields) {
  bool const has_columns =
      mode == enums::StrategyMode::FixedWidth && !options.column_widths.empty();
  std::size_t const max_fields = has_columns ? options.column_widths.size() : unknown_count;
  reading::ReadLimits const limits{.records = record_count, .lines = line_limit, .sampling = false};
  ReadSummary summary = reading::read_with_mode(options, mode, text.view(), limits,
                                                {fields, options.whitespace, max_fields});
  // A record may count the end mark behind the text as its line ending.
  summary.units_consumed = std::min(summary.units_consumed, text.length());
  return summary;
}

}  // namespace textio
