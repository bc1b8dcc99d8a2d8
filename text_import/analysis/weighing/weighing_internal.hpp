// SPDX-License-Identifier: MIT
//
// From the readings to the one that is left.
#pragma once

#include <optional>
#include <vector>

#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// At which rule a reading fell, as a position in rule_texts(); none for the one that is left.
struct ReadingFate {
  std::optional<std::size_t> rule;
  double measure = 0;
};

struct Weighing {
  std::vector<ReadingFate> fates;     ///< one for each reading
  std::optional<std::size_t> winner;  ///< none when each line is a value
};

/// The rules in the order in which they run.
[[nodiscard]] std::vector<RuleText> rule_texts();

/// Measures the values of the readings that come so far, and lets the rules decide. `is_bound`: the
/// caller gives the layout, so that the best of the readings stays where all would fall.
[[nodiscard]] Weighing weigh_readings(std::vector<Reading>& readings, bool is_bound);

/// The winner among the readings that do not split the text as `winner` does.
[[nodiscard]] std::optional<std::size_t> find_runner_up(std::vector<Reading> const& readings,
                                                        std::size_t winner);

}  // namespace textimport::analysis
