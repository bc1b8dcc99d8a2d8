// SPDX-License-Identifier: MIT
//
// The roles among which the weights decide, and what is said of them in numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace textimport::analysis {

/// The roles among which the weights decide, in the order in which they stand in a text: titles and
/// then names above the data; data, groups and totals in any order; notes below.
enum class TableRole : std::uint8_t { Title, Names, Data, Group, Total, Note };

inline constexpr std::size_t num_table_roles = 6;

/// Weights are whole sixteenths.
using RoleScores = std::array<std::int32_t, num_table_roles>;

/// One bit for each role that a line may have.
using RoleSet = std::uint8_t;

[[nodiscard]] constexpr RoleSet set_of(TableRole const role) noexcept {
  return static_cast<RoleSet>(1U << static_cast<unsigned>(role));
}

inline constexpr RoleSet above_roles = set_of(TableRole::Title) | set_of(TableRole::Names);
inline constexpr RoleSet body_roles =
    set_of(TableRole::Data) | set_of(TableRole::Group) | set_of(TableRole::Total);
inline constexpr RoleSet all_roles = above_roles | body_roles | set_of(TableRole::Note);

}  // namespace textimport::analysis
