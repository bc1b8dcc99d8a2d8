// SPDX-License-Identifier: MIT
//
// The sampling of a given strategy.
#include "text_format_detection/detection/evaluate_strategy.hpp"

#include "text_format_detection/detection/sampler_internal.hpp"

namespace textio {

StrategyValuation const& evaluate_strategy(std::shared_ptr<GenericStrategy> const& strategy,
                                           Field const& sample, std::size_t const n) {
  detection::SamplingContext context(sample, n);
  detection::sample_strategy(context, strategy, false);
  return strategy->valuation();
}

}  // namespace textio
