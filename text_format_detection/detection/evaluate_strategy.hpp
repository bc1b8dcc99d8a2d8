// SPDX-License-Identifier: MIT
//
// One hypothesis of the caller's own, looked at in the same way as those of a decision.
#pragma once

#include <cstddef>
#include <memory>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio {

/// Samples a strategy that the caller built, with any delimiters, widths or layout, and scores it.
///
/// Reads the header lines, if their number is given, and `n` records from the start of the sample.
/// Does nothing for a strategy that was sampled before but return its score. The sample outlives
/// the strategy's fields. Throws std::bad_alloc; the strategy is not sampled then.
TFD_API StrategyValuation const& evaluate_strategy(std::shared_ptr<GenericStrategy> const& strategy,
                                                   Field const& sample, std::size_t n);

}  // namespace textio
