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
/// A strategy that was sampled before is not sampled again; one of an unknown mode never is, and is
/// scored as one without records. The sample outlives the strategy's fields.
///
/// Throws std::bad_alloc: while sampling, and the strategy is not sampled then, or while scoring,
/// and it keeps its fields then. Either way it can be asked again, with the same result. A
/// GenericStrategy that is of none of the four layouts keeps the rules of its options, and those
/// set to Error throw the five parser errors; it is not sampled then.
TFD_API StrategyValuation const& evaluate_strategy(std::shared_ptr<GenericStrategy> const& strategy,
                                                   Field const& sample, std::size_t n);

}  // namespace textio
