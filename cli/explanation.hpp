// SPDX-License-Identifier: MIT
//
// What can be said about a decision beyond its record. Every judgement is the library's: where a
// question is left open by the record, the library is asked again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "cli/answer.hpp"
#include "cli/settings.hpp"

namespace cli {

/// Why a character of the text was not tried as a delimiter.
enum class NotTried : std::uint8_t {
  DecimalMark,
  ThousandsMark,
  NeverDelimiter,  ///< quotes, brackets, signs
  NotAscii,
  OutsideMiddle,  ///< it stands only in the first and last lines, which are not looked at
};

/// A character of the sample that is neither letter nor digit.
struct UntriedCharacter {
  char32_t character = 0;
  NotTried why = NotTried::NeverDelimiter;
};

struct Explanation {
  std::vector<UntriedCharacter> untried;  ///< in the order of their code points
  /// Of the candidates that fell at the last rule, when it left the winner alone, the nearest.
  std::vector<std::size_t> runners_up;
  /// How far they are off the winner, in the measure of the last rule.
  std::optional<double> margin;
  /// The answer if the winner's delimiter could not be one; nothing when nothing won.
  std::optional<Finding> without_winner;
};

/// Of the library's own answer, which is there.
[[nodiscard]] Explanation explain_answer(Answer const& answer, Settings const& settings);

}  // namespace cli
