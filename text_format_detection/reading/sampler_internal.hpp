// SPDX-License-Identifier: MIT
//
// From a strategy to its sampled fields.
#pragma once

#include <memory>

#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/reading/reading_loop_internal.hpp"
#include "text_format_detection/reading/sampling_context_internal.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::reading {

/// Reads the sample with the strategy's own record reader, hands the fields to the strategy and, if
/// `valuate` is set, has it score itself. Header lines are not skipped but read as records: where
/// their number is given it is added to the record limit. A strategy is sampled at most once; the
/// second call does nothing, and one of an unknown mode reads nothing.
///
/// On an error the strategy has no fields yet, and what was read stays in the context.
void sample_strategy(SamplingContext& ctx, std::shared_ptr<GenericStrategy> const& strategy,
                     bool valuate);

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
