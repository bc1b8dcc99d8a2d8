// SPDX-License-Identifier: MIT
#include "text_import/report/character_cells_internal.hpp"

#include <algorithm>

#include "text_import/report/character_cells_table_internal.hpp"

namespace textimport::reporting {

std::optional<std::size_t> cells_of(char32_t const c) {
  constexpr std::uint32_t hidden = 3;
  constexpr std::uint32_t bits = 2;  // of the number of cells
  auto const key = (static_cast<std::uint32_t>(c) << bits) | hidden;
  auto const cells = *(std::ranges::upper_bound(cell_changes, key) - 1) & hidden;
  return cells == hidden ? std::nullopt : std::optional<std::size_t>(cells);
}

}  // namespace textimport::reporting
