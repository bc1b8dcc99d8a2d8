// SPDX-License-Identifier: MIT
//
// The reader by mode. All loops over all scanners are compiled here.
#include "text_format_detection/reading/read_with_mode_internal.hpp"

#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/reading/delimited_scanner_internal.hpp"
#include "text_format_detection/reading/fixed_width_scanner_internal.hpp"
#include "text_format_detection/reading/line_scanner_internal.hpp"

namespace textio::reading {

ReadSummary read_with_mode(parser::options const& options, enums::StrategyMode const mode,
                           std::u16string_view const text, ReadLimits const& limits,
                           ReadTarget const& target) {
  RecordStore store(target.fields, text, target.whitespace, target.max_fields);
  store.expect(target.expected_records);
  switch (mode) {
    case enums::StrategyMode::Delimited:
    case enums::StrategyMode::SpaceAligned:
      return run_reading_loop(parser::DelimitedRecordReader(options), text, limits, store);
    case enums::StrategyMode::FixedWidth:
      return run_reading_loop(parser::FixedWidthRecordReader(options), text, limits, store);
    case enums::StrategyMode::LineReader:
      return run_reading_loop(parser::LineRecordReader(options), text, limits, store);
  }
  return {};
}

}  // namespace textio::reading
