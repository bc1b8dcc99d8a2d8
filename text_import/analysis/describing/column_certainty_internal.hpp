// SPDX-License-Identifier: MIT
//
// How sure the type of a column is.
#pragma once

#include <cstddef>

#include "text_import/analysis/values/number_marks_internal.hpp"
#include "text_import/format/column.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// A column that has settled on its type, and what else its values show.
struct SettledColumn {
  Column const& column;
  ColumnEvidence const& counts;
  FileStyle const& file;
  std::size_t nearest = 0;        ///< of texts: values of the type that most of them fit
  std::size_t numbers = 0;        ///< values that are numbers
  std::size_t percents = 0;       ///< of these, with a per cent sign
  std::size_t fewest_digits = 0;  ///< that a number begins with
  std::size_t most_digits = 0;
};

/// From 0 to 1, when the lines are split right and the data begin and end where they are said to:
/// of the columns with such a value about that share has the type that a person would name.
[[nodiscard]] double certainty_of_type(SettledColumn const& settled) noexcept;

}  // namespace textimport::analysis
