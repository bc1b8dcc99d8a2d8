// SPDX-License-Identifier: MIT
//
// The characters of a sample that a decision did not try as delimiters.
#pragma once

#include <string_view>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/model/options.hpp"

namespace textio::detection {

/// The characters of `text`, up to its end mark, that stand between the fields of none of the
/// `sampled` strategies, with the reason for each; see DetectionReport::untried. Time is linear in
/// the text, memory in its distinct characters. Throws std::bad_alloc.
[[nodiscard]] std::vector<UntriedCharacter> untried_characters(
    std::u16string_view text, parser::options const& options,
    std::vector<SampledStrategy> const& sampled);

}  // namespace textio::detection
