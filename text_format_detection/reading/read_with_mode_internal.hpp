// SPDX-License-Identifier: MIT
//
// From options to the records of a text: the reader by mode.
#pragma once

#include <cstddef>
#include <string_view>

#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/reading/read_summary.hpp"
#include "text_format_detection/reading/reading_loop_internal.hpp"

namespace textio::reading {

/// Where records go. A record keeps `max_fields` fields, and is stored as an empty one if its only
/// field is `whitespace`. There is room for `expected_records` at once.
struct ReadTarget {
  FieldArray& fields;
  std::u16string_view whitespace;
  std::size_t max_fields;
  std::size_t expected_records = 0;
};

/// Reads `text` with the reader for `mode`; nothing for an unknown mode.
ReadSummary read_with_mode(parser::options const& options, enums::StrategyMode mode,
                           std::u16string_view text, ReadLimits const& limits,
                           ReadTarget const& target);

}  // namespace textio::reading
