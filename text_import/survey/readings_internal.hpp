// SPDX-License-Identifier: MIT
//
// Every reading that a survey weighs: what the library sampled under each hypothesis, and what it
// never guesses by itself.
#pragma once

#include <memory>
#include <vector>

#include "text_import/survey/hypothesis_internal.hpp"
#include "text_import/survey/reading_internal.hpp"
#include "text_import/survey/sample_lines_internal.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport::survey {

/// The readings of the sample, in a fixed order; their values are not measured yet. A given layout
/// or delimiter leaves only the readings that keep to it, at least one for each hypothesis.
[[nodiscard]] std::vector<reading> collect_readings(sample_lines const& lines,
                                                    std::vector<hypothesis> const& hypotheses,
                                                    survey_options const& options);

/// The strategy of a reading once more, with a comma for the decimal mark of its numbers.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> read_with_decimal_comma(
    reading const& r, sample_lines const& lines, survey_options const& options);

/// Each line as one value, under the first hypothesis.
[[nodiscard]] std::shared_ptr<textio::GenericStrategy> read_lines(sample_lines const& lines,
                                                                  survey_options const& options);

}  // namespace textimport::survey
