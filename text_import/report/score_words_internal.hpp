// SPDX-License-Identifier: MIT
//
// Why one way to read a text scores more than another, measure by measure.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_import/format/evidence.hpp"

namespace textimport::reporting {

/// What one measure says of a candidate beside another.
struct ScoreDifference {
  std::size_t measure = 0;  ///< position in Evidence::measures
  double here = 0;          ///< what was measured of the candidate
  double there = 0;         ///< and of the other
  double amount = 0;        ///< above 0 it speaks for the candidate
};

/// The differences of two scores, the largest first. Their amounts add up to that of the scores.
[[nodiscard]] std::vector<ScoreDifference> differences(Candidate const& candidate,
                                                       Candidate const& other);

/// The candidates that are most likely, each way to split the lines once, the answer first.
[[nodiscard]] std::vector<Candidate const*> ranked_candidates(Evidence const& evidence);

/// "records without these columns: 0 %, there 64 %".
[[nodiscard]] std::string difference_text(Evidence const& evidence,
                                          ScoreDifference const& difference);

/// "records without these columns: 0 %, there 64 %; ...": what speaks most for the candidate, at
/// most `most` of it; empty when nothing does.
[[nodiscard]] std::string strongest_text(Evidence const& evidence, Candidate const& candidate,
                                         Candidate const& other, std::size_t most);

}  // namespace textimport::reporting
