// SPDX-License-Identifier: MIT
//
// Sampling: the reader by mode, the limits, and handing over the array.
#include "text_format_detection/reading/sampler_internal.hpp"

#include "text_format_detection/platform/record_readers.hpp"
#include "text_format_detection/reading/delimited_scanner_internal.hpp"
#include "text_format_detection/reading/fixed_width_scanner_internal.hpp"
#include "text_format_detection/reading/line_scanner_internal.hpp"

namespace textio::reading {

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
  ReadLimits const limits{.records = model::saturated_sum(ctx.record_limit, header_lines),
                          .lines = unknown_count,
                          .sampling = true};
  read_with_mode(strategy.options(), strategy.mode(), ctx.sample->view(), limits,
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
