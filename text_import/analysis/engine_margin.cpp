// SPDX-License-Identifier: MIT
#include "text_import/analysis/engine_margin.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace textimport {

EngineMargin engine_margin(textio::detection::DetectionReport const& engine) {
  EngineMargin result;
  if (!engine.winner || engine.steps.empty()) {
    return result;
  }
  auto const& last = engine.steps.back();
  auto const place = std::ranges::find(last.seen, *engine.winner) - last.seen.begin();
  double const winning = last.measures[static_cast<std::size_t>(place)];
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < last.seen.size(); ++i) {
    double const distance = std::abs(last.measures[i] - winning);
    if (last.seen[i] == *engine.winner || distance > nearest) {
      continue;
    }
    if (distance < nearest) {
      result.runners_up.clear();
      nearest = distance;
    }
    result.runners_up.push_back(last.seen[i]);
  }
  if (std::isfinite(nearest)) {
    result.margin = nearest;
  }
  return result;
}

}  // namespace textimport
