// SPDX-License-Identifier: MIT
//
// One additive score for every way to read a text, each line as a value among them; the shares of
// the scores are how sure the answer is.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// What is said of one reading.
struct ReadingScore {
  bool is_table = false;  ///< false: it has fewer than two columns, and cannot be the answer
  double score = 0;
  double share = 0;  ///< 0 to 1, of the exponentials of all scores
  std::vector<ScorePiece> pieces;
};

struct Weighing {
  std::vector<ReadingScore> scores;   ///< one for each reading, and the last for whole lines
  std::optional<std::size_t> winner;  ///< none when each line is a value
  double certainty = 0;               ///< the share of all readings that split the text alike
  /// The best that splits the text in another manner than the answer, as a position in `scores`.
  std::optional<std::size_t> runner_up;
  double certainty_of_runner_up = 0;
};

/// What is measured, in the order that ScorePiece::measure counts by.
[[nodiscard]] std::vector<MeasureText> measure_texts();

/// Measures the values of the readings that come so far, and scores all. `engine_decision`: the
/// strategy that the engine came to by itself, if it was asked. `is_bound`: the caller gives the
/// layout, so that lines are no answer and the best of the readings is, whatever it is like.
[[nodiscard]] Weighing weigh_readings(std::vector<Reading>& readings, LineIndex const& lines,
                                      textio::GenericStrategy const* engine_decision,
                                      bool is_bound);

}  // namespace textimport::analysis
