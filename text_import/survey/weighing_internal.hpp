// SPDX-License-Identifier: MIT
//
// From the readings to the one that is left.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

/// At which rule a reading fell; no name for the one that is left.
struct reading_fate {
  std::string_view rule;
  double measure = 0;
};

struct weighing {
  std::vector<reading_fate> fates;    ///< one for each reading
  std::optional<std::size_t> winner;  ///< none when each line is a value
};

/// Measures the values of the readings that come so far, and lets the rules decide. `is_bound`: the
/// caller gives the layout, so that the best of the readings stays where all would fall.
[[nodiscard]] weighing weigh_readings(std::vector<reading>& readings, bool is_bound);

/// The winner among the readings that do not split the text as `winner` does.
[[nodiscard]] std::optional<std::size_t> find_runner_up(std::vector<reading> const& readings,
                                                        std::size_t winner);

}  // namespace textimport::survey
