// SPDX-License-Identifier: MIT
//
// Columns of fixed width as the lines of a text show them: by blanks that run through them, by a
// ruler below the names, or by digits that begin at one place.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/readings/column_profile_internal.hpp"

namespace textimport::analysis {

/// Columns that some lines of a text may have.
struct FixedColumns {
  ColumnProfile profile;            ///< of the lines that show them
  std::vector<std::size_t> starts;  ///< in code units, 0 first
  bool by_ruler = false;            ///< a line of dashes or bars parts them
  bool are_touching = false;        ///< digits part them, and no blanks

  /// Their widths, the last one up to the end of the longest line.
  [[nodiscard]] std::vector<std::size_t> widths() const;

  /// How much the lines agree up to where the last column begins: it may be free text.
  [[nodiscard]] double head_agreement() const noexcept;

  /// The share of the usual length in front of the last column.
  [[nodiscard]] double head_share() const noexcept;

  /// Whether the line has what the others have, where they have it, and ends no column inside a
  /// word but for one in eight.
  [[nodiscard]] bool fits(std::u16string_view line) const noexcept;
};

/// What the first lines show, the likeliest first, at most three. `marker`: lines that begin with
/// it are comments; empty: there are none.
[[nodiscard]] std::vector<FixedColumns> find_fixed_columns(LineIndex const& lines,
                                                           std::u16string_view marker);

/// The lines as one column.
[[nodiscard]] FixedColumns single_column(LineIndex const& lines);

/// The lines behind these are like those before them.
inline constexpr std::size_t lines_profiled = 400;

}  // namespace textimport::analysis
