// SPDX-License-Identifier: MIT
//
// How close the engine's decision was.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/export.hpp"

namespace textimport {

struct EngineMargin {
  /// Of the candidates that fell at the last rule, those nearest to the winner: positions in
  /// DetectionReport::candidates, ascending. Empty when no rule decided.
  std::vector<std::size_t> runners_up;
  /// How far they are off the winner, in the measure of the last rule. Empty without them.
  std::optional<double> margin;
};

[[nodiscard]] TEXT_IMPORT_API EngineMargin
engine_margin(textio::detection::DetectionReport const& report);

}  // namespace textimport
