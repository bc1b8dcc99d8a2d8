// SPDX-License-Identifier: MIT
//
// The engine's own decision, for people.
#pragma once

#include <string>
#include <string_view>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/report/style.hpp"

namespace textimport::reporting {

/// The engine's answer about the sample, the characters and readings that it tried, and the rules
/// that compared them.
[[nodiscard]] std::string engine_story(std::u16string_view sample,
                                       textio::detection::DetectionReport const& engine,
                                       ReportStyle const& style);

}  // namespace textimport::reporting
