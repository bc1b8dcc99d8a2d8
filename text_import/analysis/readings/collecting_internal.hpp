// SPDX-License-Identifier: MIT
//
// Every reading that a survey weighs: what the library sampled under each hypothesis, and what it
// never guesses by itself.
#pragma once

#include <memory>
#include <vector>

#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport::analysis {

/// The readings of the sample, in a fixed order; their values are not measured yet. A given layout
/// or delimiter leaves only the readings that keep to it, at least one for each hypothesis.
[[nodiscard]] std::vector<Reading> collect_readings(LineIndex const& lines,
                                                    std::vector<Hypothesis> const& hypotheses,
                                                    SurveyOptions const& options);

/// The strategy of a reading once more, with a comma for the decimal mark of its numbers.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> read_with_decimal_comma(
    Reading const& r, LineIndex const& lines, SurveyOptions const& options);

/// Each line as one value, under the first hypothesis.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> read_lines(LineIndex const& lines,
                                                                  SurveyOptions const& options);

}  // namespace textimport::analysis
