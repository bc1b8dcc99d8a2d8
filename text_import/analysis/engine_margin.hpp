// SPDX-License-Identifier: MIT
//
// By how much the engine's answer won.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_import/export.hpp"

namespace textimport {

/// The readings that came nearest to the engine's answer.
struct EngineMargin {
  /// Of the candidates that fell at the last rule, those nearest to the winner; positions in
  /// DetectionReport::candidates. None when no rule ran or nothing won.
  std::vector<std::size_t> runners_up;
  /// How far they are off the winner, in the measure of that rule; empty where that is no number.
  std::optional<double> margin;
};

[[nodiscard]] TEXT_IMPORT_API EngineMargin
engine_margin(textio::detection::DetectionReport const& engine);

}  // namespace textimport
