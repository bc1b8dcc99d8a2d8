// SPDX-License-Identifier: MIT
//
// Construction and accessors of a strategy. Scoring is in valuation.cpp, the types of its columns
// in inspect_datatypes.cpp.
#include "text_format_detection/strategies/generic_strategy.hpp"

#include <utility>

namespace textio {

GenericStrategy::GenericStrategy(parser::options const& options,
                                 TypeAnalyzerOptions const& type_options,
                                 enums::StrategyMode const mode)
    : options_(options),
      detect_header_lines_(options.detect_header_lines),
      header_lines_(options.header_lines),
      type_options_(type_options),
      mode_(mode) {}

GenericStrategy::~GenericStrategy() = default;

bool GenericStrategy::header_lines(std::size_t const n) noexcept {
  bool const is_line_reader = mode_ == enums::StrategyMode::LineReader;
  header_lines_ = is_line_reader ? 0 : n;
  detect_header_lines_ = header_lines_ == unknown_count;
  return detect_header_lines_;
}

std::size_t GenericStrategy::num_variables() const noexcept {
  return evaluated_ ? valuation_.num_variables : unknown_count;
}

void GenericStrategy::field_array(std::unique_ptr<FieldArray> fields) noexcept {
  field_array_set_ = true;
  field_array_ = std::move(fields);
}

void GenericStrategy::reset_whitespace(std::u16string const& whitespace) {
  type_options_.whitespace = whitespace;
}

}  // namespace textio
