// SPDX-License-Identifier: MIT
//
// The score of a strategy. The lines' field counts are the raw material:
//
//   counts      3 0 7 7 7 6 7      one for each line, 0 for an empty one
//   typical     7                  the lower median of the counts of 2 or more
//   deviations  4   0 0 0 1 0      one for each non-empty line, up to the last typical one
//
// Their mean says how regular the reading is, the bend in their running mean how many lines are
// headers (found among the non-empty lines, then moved past the empty ones).
#include <algorithm>
#include <cstdint>
#include <limits>
#include <vector>

#include "text_format_detection/detection/header_lines.hpp"
#include "text_format_detection/strategies/field_counts_internal.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio {

namespace {

// Above this, the lines behind a detected header are too irregular to trust the header.
constexpr double largest_trusted_variation = 1.0;

/// The number of fields of each record, once the empty records at the end are dropped.
std::vector<std::size_t> field_counts(FieldArray* const fields) {
  std::vector<std::size_t> counts;
  if (fields == nullptr) {
    return counts;
  }
  fields->drop_trailing_empty_records();
  counts.reserve(fields->num_records());
  for (std::size_t r = 0; r < fields->num_records(); ++r) {
    counts.push_back(fields->num_fields(r));
  }
  return counts;
}

/// The positions of the lines without fields, ascending.
std::vector<std::size_t> empty_lines(std::vector<std::size_t> const& counts) {
  std::vector<std::size_t> positions;
  for (std::size_t line = 0; line < counts.size(); ++line) {
    if (counts[line] == 0) {
      positions.push_back(line);
    }
  }
  return positions;
}

}  // namespace

StrategyValuation const& GenericStrategy::valuation() {
  if (evaluated_) {
    return valuation_;
  }
  std::vector<std::size_t> const counts = field_counts(field_array_.get());
  valuation_.num_records = counts.size();
  score(counts);
  // A reading whose columns were not inspected has undecided ones.
  column_types_.resize(valuation_.num_variables,
                       static_cast<unsigned char>(enums::ColumnType::Undecided));
  valuation_.header_lines = header_lines_;
  evaluated_ = true;
  return valuation_;
}

void GenericStrategy::score(std::vector<std::size_t> const& counts) {
  if (counts.empty()) {
    return;
  }
  std::size_t const skip = detect_header_lines_ ? strategies::count_single_field_lines(counts) : 0;
  if (skip >= counts.size()) {
    header_lines_ = 0;
    return;
  }
  std::size_t const typical = strategies::typical_field_count(counts, skip);
  valuation_.typical_fields = static_cast<std::int32_t>(typical);
  if (typical > 1) {
    score_regular_lines(counts, typical, skip);
  } else if (detect_header_lines_) {
    header_lines_ = skip;
  }
  inspect_datatypes();
}

void GenericStrategy::score_regular_lines(std::vector<std::size_t> const& counts,
                                          std::size_t const typical, std::size_t const skip) {
  std::vector<std::size_t> const deviations = strategies::field_count_deviations(counts, typical);
  valuation_.mean_deviation = strategies::mean_from(deviations, 0);
  calculate_headerlines(deviations, skip);
  valuation_.data_variation = get_data_variation(deviations);
  if (detect_header_lines_) {
    if (skip < header_lines_ && valuation_.data_variation > largest_trusted_variation) {
      header_lines_ = skip;
      valuation_.data_variation = get_data_variation(deviations);
    }
    header_lines_ = strategies::to_line_index(header_lines_, empty_lines(counts), counts);
  }
  valuation_.num_variables = get_number_of_variables(counts);
}

void GenericStrategy::calculate_headerlines(std::vector<std::size_t> const& deviations,
                                            std::size_t const skip) {
  if (header_lines_ != unknown_count) {
    return;
  }
  header_lines_ = valuation_.mean_deviation == 0.0
                      ? 0
                      : detection::get_header_lines(deviations, skip, blank_delimited_);
}

double GenericStrategy::get_data_variation(std::vector<std::size_t> const& deviations) const {
  if (header_lines_ == 0) {
    return valuation_.mean_deviation;
  }
  if (header_lines_ >= deviations.size()) {
    return std::numeric_limits<double>::infinity();
  }
  return strategies::mean_from(deviations, header_lines_);
}

std::size_t GenericStrategy::get_number_of_variables(std::vector<std::size_t> const& counts) const {
  // Narrowed to 32 bits at each step, deliberately: that is the range of a number of fields.
  std::int32_t largest = 1;
  for (std::size_t line = header_lines_; line < counts.size(); ++line) {
    largest = static_cast<std::int32_t>(std::max(static_cast<std::size_t>(largest), counts[line]));
  }
  return static_cast<std::size_t>(largest);
}

}  // namespace textio
