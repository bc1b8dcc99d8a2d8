// SPDX-License-Identifier: MIT
//
// Sampling: the limits, and handing over the array.
#include "text_format_detection/detection/sampler_internal.hpp"

#include "text_format_detection/reading/read_with_mode_internal.hpp"

namespace textio::detection {

namespace {

bool has_reader(enums::StrategyMode const mode) noexcept {
  return mode <= enums::StrategyMode::LineReader;
}

/// Lets a fixed-width strategy keep one field for each column, for the time of one sampling. (Not
/// undone on an error: every sampling sets the limits anew.)
void set_field_limit(SamplingContext& ctx, GenericStrategy const& strategy) {
  ctx.limit_fields = strategy.mode() == enums::StrategyMode::FixedWidth;
  ctx.max_fields = ctx.limit_fields ? strategy.options().column_widths.size() : unknown_count;
}

void fill_fields(SamplingContext& ctx, GenericStrategy const& strategy) {
  ctx.whitespace = std::make_unique<std::u16string>(strategy.options().whitespace);
  std::size_t const header_lines = strategy.detects_header_lines() ? 0 : strategy.header_lines();
  reading::ReadLimits const limits{.records = model::saturated_sum(ctx.record_limit, header_lines),
                                   .lines = unknown_count,
                                   .sampling = true};
  reading::read_with_mode(strategy.options(), strategy.mode(), ctx.sample->view(), limits,
                          {*ctx.fields, *ctx.whitespace, ctx.max_fields, ctx.num_records_before});
  ctx.num_records_before = ctx.fields->num_records();
}

}  // namespace

void sample_strategy(SamplingContext& ctx, std::shared_ptr<GenericStrategy> const& strategy,
                     bool const valuate) {
  if (strategy->is_sampled()) {
    return;
  }
  ctx.fields = std::make_unique<FieldArray>();
  if (!has_reader(strategy->mode())) {
    return;
  }
  set_field_limit(ctx, *strategy);
  fill_fields(ctx, *strategy);
  strategy->field_array(std::move(ctx.fields));
  ctx.limit_fields = false;
  ctx.max_fields = unknown_count;
  if (valuate) {
    strategy->valuation();
  }
}

}  // namespace textio::detection
