// SPDX-License-Identifier: MIT
//
// The roles of all lines of a table, decided together: the best of all sequences that are possible.
#pragma once

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

#include "text_import/analysis/describing/line_features_internal.hpp"
#include "text_import/analysis/describing/table_roles_internal.hpp"

namespace textimport::analysis {

/// How much worse a sequence is that no sequence is worse than.
inline constexpr std::int32_t no_doubt = std::numeric_limits<std::int32_t>::max();

/// By how much the best sequence is better than the best one with another first line of data, last
/// line of data, or other names.
struct RoleMargins {
  std::int32_t first_line = no_doubt;
  std::int32_t last_line = no_doubt;
  std::int32_t names = no_doubt;
};

struct RoleSequence {
  std::vector<TableRole> roles;   ///< one for each line
  std::vector<TableRole> rivals;  ///< for each line what it would be if not that
  RoleMargins margins;
};

/// What the features of one line say for each role.
[[nodiscard]] RoleScores score_of(JudgedLine const& line) noexcept;

/// `allowed`: for each line the roles that it may have; empty for all. Without `sees_end` no line
/// is a note. Where what is allowed leaves no sequence, the lines are data. Linear in the lines.
[[nodiscard]] RoleSequence best_roles(std::vector<JudgedLine> const& lines, bool sees_end,
                                      std::vector<RoleSet> const& allowed);

/// The role that is told of a line: a group is a heading of a cell or two, and something has to
/// speak of a sum, as neither is read as data; others are data.
[[nodiscard]] TableRole told_role(JudgedLine const& line, TableRole role) noexcept;

/// What speaks most for the one role of a line and against the other: at most three sentences.
[[nodiscard]] std::vector<std::string_view> reasons_for(JudgedLine const& line, TableRole role,
                                                        TableRole rival);

/// The share of tables with such a margin that are right, 0 to 1.
[[nodiscard]] double share_right(std::int32_t margin) noexcept;

}  // namespace textimport::analysis
