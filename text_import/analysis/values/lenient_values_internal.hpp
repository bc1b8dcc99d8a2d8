// SPDX-License-Identifier: MIT
//
// How the analysis judges values where the grammar leaves a choice: as a reader who wants to
// understand a file, not as the scores do, whose answers are fixed.
#pragma once

#include <cstddef>

namespace textimport::analysis {

/// The counterpart of textio::strategies::StrictValues, member by member.
struct LenientValues {
  /// Nobody writes a number as a prefix without digits: "0x" is a word or the stump of a value.
  static constexpr bool takes_bare_prefix = false;

  /// Hours, minutes and days have up to three digits. More of them in front of a colon are an
  /// address with a port, a verse or a ratio; the last group may count seconds and is not limited.
  static constexpr std::size_t max_group_digits = 3;

  /// Java, JavaScript and most writers of JSON spell infinity out.
  static constexpr bool takes_spelled_infinity = true;
};

}  // namespace textimport::analysis
