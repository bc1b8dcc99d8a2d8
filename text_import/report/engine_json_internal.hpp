// SPDX-License-Identifier: MIT
//
// The engine's own decision as JSON.
#pragma once

#include <string_view>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/format/json_values_internal.hpp"

namespace textimport {

/// What the engine decided.
[[nodiscard]] Json engine_answer(textio::detection::DetectionReport const& report);

/// How it came to that about the sample: every strategy with its score, and every rule.
[[nodiscard]] Json engine_story(std::u16string_view sample,
                                textio::detection::DetectionReport const& report);

}  // namespace textimport
