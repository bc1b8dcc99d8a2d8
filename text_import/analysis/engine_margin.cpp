// SPDX-License-Identifier: MIT

#include "text_import/analysis/engine_margin.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace textimport {

EngineMargin engine_margin(textio::detection::DetectionReport const& report) {
  EngineMargin found;
  if (!report.winner || report.steps.empty()) {
    return found;
  }
  auto const& last = report.steps.back();
  auto const winner = std::ranges::find(last.seen, *report.winner);
  double const winning = last.measures[static_cast<std::size_t>(winner - last.seen.begin())];
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < last.seen.size(); ++i) {
    double const distance = std::abs(last.measures[i] - winning);
    if (last.seen[i] == *report.winner || distance > nearest) {
      continue;
    }
    if (distance < nearest) {
      found.runners_up.clear();
      nearest = distance;
    }
    found.runners_up.push_back(last.seen[i]);
  }
  if (std::isfinite(nearest)) {
    found.margin = nearest;
  }
  return found;
}

}  // namespace textimport
