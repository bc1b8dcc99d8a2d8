// SPDX-License-Identifier: MIT
//
// From a strategy to its sampled fields.
#pragma once

#include <memory>

#include "text_format_detection/detection/sampling_context_internal.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::detection {

/// Reads the sample with the strategy's own record reader, hands the fields to the strategy and, if
/// `valuate` is set, has it score itself. Header lines are not skipped but read as records: where
/// their number is given it is added to the record limit. A strategy is sampled at most once; the
/// second call does nothing, and one of an unknown mode reads nothing.
///
/// On an error the strategy has no fields yet, and what was read stays in the context.
void sample_strategy(SamplingContext& ctx, std::shared_ptr<GenericStrategy> const& strategy,
                     bool valuate);

}  // namespace textio::detection
