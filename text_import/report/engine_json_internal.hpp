// SPDX-License-Identifier: MIT
//
// The engine's own decision as JSON: one object each.
#pragma once

#include <string_view>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/format/json_writer_internal.hpp"

namespace textimport {

/// What the engine decided.
void write_engine_answer(JsonWriter& writer, textio::detection::DetectionReport const& report);

/// How it came to that about the sample: every strategy with its score, and every rule.
void write_engine_story(JsonWriter& writer, std::u16string_view sample,
                        textio::detection::DetectionReport const& report);

}  // namespace textimport
