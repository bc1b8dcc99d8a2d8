// SPDX-License-Identifier: MIT
//
// The rules by which a survey narrows its readings, in the order in which they run. Each has a file
// of its own, with its reason. What no rule leaves is read line by line.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/survey/reading_internal.hpp"

namespace textimport::survey {

/// Positions in the list of readings, ascending.
using kept_readings = std::vector<std::size_t>;

struct survey_rule {
  std::string_view name;
  /// Those of `kept` that stay.
  kept_readings (*apply)(kept_readings const& kept, std::vector<reading> const& readings);
  /// The number that the rule looks at, for people.
  double (*measure)(reading const& r);
};

extern survey_rule const regular_records;  // the only one that asks for no values
extern survey_rule const several_columns;
extern survey_rule const enough_text;
extern survey_rule const single_blanks;
extern survey_rule const doubled_delimiters;
extern survey_rule const rare_delimiters;
extern survey_rule const sound_values;
extern survey_rule const seconds_are_no_column;
extern survey_rule const keys_are_no_column;
extern survey_rule const typed_fixed_width;
extern survey_rule const touching_columns;
extern survey_rule const best_fit;
extern survey_rule const usual_delimiters;

/// Those of `kept` for which `keeps` holds.
template <class Predicate>
kept_readings keep_if(kept_readings const& kept, std::vector<reading> const& readings,
                      Predicate const keeps) {
  kept_readings left;
  for (std::size_t const i : kept) {
    if (keeps(readings[i])) {
      left.push_back(i);
    }
  }
  return left;
}

}  // namespace textimport::survey
