// SPDX-License-Identifier: MIT
//
// The rules by which an analysis narrows its readings, in the order in which they run. Each has a
// file of its own, with its reason. What no rule leaves is read line by line.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/analysis/readings/reading_internal.hpp"

namespace textimport::analysis {

/// Positions in the list of readings, ascending.
using KeptReadings = std::vector<std::size_t>;

struct WeighingRule {
  std::string_view name;
  std::string_view meaning;  ///< what it demands, and which number it looks at
  /// Those of `kept` that stay.
  KeptReadings (*apply)(KeptReadings const& kept, std::vector<Reading> const& readings);
  /// The number that the rule looks at, for people.
  double (*measure)(Reading const& r);
  bool measure_is_share = false;  ///< that number is a share, 0 to 1
};

extern WeighingRule const regular_records;  // the only one that asks for no values
extern WeighingRule const several_columns;
extern WeighingRule const enough_text;
extern WeighingRule const single_blanks;
extern WeighingRule const doubled_delimiters;
extern WeighingRule const rare_delimiters;
extern WeighingRule const sound_values;
extern WeighingRule const seconds_are_no_column;
extern WeighingRule const keys_are_no_column;
extern WeighingRule const typed_fixed_width;
extern WeighingRule const touching_columns;
extern WeighingRule const best_fit;
extern WeighingRule const usual_delimiters;

/// Those of `kept` for which `keeps` holds.
template <class Predicate>
KeptReadings keep_if(KeptReadings const& kept, std::vector<Reading> const& readings,
                     Predicate const keeps) {
  KeptReadings left;
  for (std::size_t const i : kept) {
    if (keeps(readings[i])) {
      left.push_back(i);
    }
  }
  return left;
}

}  // namespace textimport::analysis
