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
#include <utility>
#include <vector>

#include "text_format_detection/detection/header_lines.hpp"
#include "text_format_detection/strategies/column_inspection_internal.hpp"
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

/// A score in the making, with the header lines that go with it. The strategy takes both over when
/// nothing can fail any more, so that a failed allocation leaves it as it was.
struct Score {
  StrategyValuation valuation;
  std::size_t header_lines;
};

/// Finds the header lines, unless they are known.
void find_header_lines(Score& score, std::vector<std::size_t> const& deviations,
                       std::size_t const skip, bool const blank_delimited) {
  if (score.header_lines != unknown_count) {
    return;
  }
  score.header_lines = score.valuation.mean_deviation == 0.0
                           ? 0
                           : detection::get_header_lines(deviations, skip, blank_delimited);
}

double data_variation(Score const& score, std::vector<std::size_t> const& deviations) {
  if (score.header_lines == 0) {
    return score.valuation.mean_deviation;
  }
  if (score.header_lines >= deviations.size()) {
    return std::numeric_limits<double>::infinity();
  }
  return strategies::mean_from(deviations, score.header_lines);
}

/// The most fields of a line from the header lines on, at least 1.
std::size_t most_fields(std::vector<std::size_t> const& counts, std::size_t const header_lines) {
  // Narrowed to 32 bits at each step, deliberately: that is the range of a number of fields.
  std::int32_t largest = 1;
  for (std::size_t line = header_lines; line < counts.size(); ++line) {
    largest = static_cast<std::int32_t>(std::max(static_cast<std::size_t>(largest), counts[line]));
  }
  return static_cast<std::size_t>(largest);
}

/// Scores lines that hold `typical` fields, 2 at least; the first `skip` of them hold one.
void score_regular_lines(GenericStrategy const& strategy, std::vector<std::size_t> const& counts,
                         std::size_t const typical, std::size_t const skip, Score& score) {
  std::vector<std::size_t> const deviations = strategies::field_count_deviations(counts, typical);
  if (deviations.empty()) {  // cannot be: the typical count is some line's count
    score.header_lines = std::max(strategies::to_line_index(0, empty_lines(counts), counts), skip);
    return;
  }
  score.valuation.mean_deviation = strategies::mean_from(deviations, 0);
  find_header_lines(score, deviations, skip, strategy.is_blank_delimited());
  score.valuation.data_variation = data_variation(score, deviations);
  if (strategy.detects_header_lines()) {
    if (skip < score.header_lines && score.valuation.data_variation > largest_trusted_variation) {
      score.header_lines = skip;
      score.valuation.data_variation = data_variation(score, deviations);
    }
    score.header_lines = strategies::to_line_index(score.header_lines, empty_lines(counts), counts);
  }
  score.valuation.num_variables = most_fields(counts, score.header_lines);
}

/// Scores the lines. Returns whether there is a table whose columns can be inspected.
bool score_lines(GenericStrategy const& strategy, std::vector<std::size_t> const& counts,
                 Score& score) {
  score.valuation.num_records = counts.size();
  if (counts.empty()) {
    return false;
  }
  bool const detects = strategy.detects_header_lines();
  std::size_t const skip = detects ? strategies::count_single_field_lines(counts) : 0;
  if (skip >= counts.size()) {
    score.header_lines = 0;
    return false;
  }
  std::size_t const typical = strategies::typical_field_count(counts, skip);
  score.valuation.typical_fields = static_cast<std::int32_t>(typical);
  if (typical > 1) {
    score_regular_lines(strategy, counts, typical, skip, score);
  } else if (detects) {
    score.header_lines = skip;
  }
  return true;
}

}  // namespace

StrategyValuation const& GenericStrategy::valuation() {
  if (evaluated_) {
    return valuation_;
  }
  std::vector<std::size_t> const counts = field_counts(field_array_.get());
  Score score{valuation_, header_lines_};
  bool const has_columns = score_lines(*this, counts, score);
  std::vector<unsigned char> types =
      has_columns ? strategies::inspect_columns(field_array_.get(), score.header_lines,
                                                type_options_, score.valuation)
                  : column_types_;
  // A reading whose columns were not inspected has undecided ones.
  types.resize(score.valuation.num_variables,
               static_cast<unsigned char>(enums::ColumnType::Undecided));
  valuation_ = score.valuation;
  valuation_.header_lines = header_lines_ = score.header_lines;
  column_types_ = std::move(types);
  columns_inspected_ = columns_inspected_ || has_columns;
  evaluated_ = true;
  return valuation_;
}

void GenericStrategy::calculate_headerlines(std::vector<std::size_t> const& deviations,
                                            std::size_t const skip) {
  Score score{valuation_, header_lines_};
  find_header_lines(score, deviations, skip, blank_delimited_);
  header_lines_ = score.header_lines;
}

double GenericStrategy::get_data_variation(std::vector<std::size_t> const& deviations) const {
  return data_variation({valuation_, header_lines_}, deviations);
}

std::size_t GenericStrategy::get_number_of_variables(std::vector<std::size_t> const& counts) const {
  return most_fields(counts, header_lines_);
}

}  // namespace textio
