// SPDX-License-Identifier: MIT
//
// Names of columns: put into a Format, and made unique.
#pragma once

#include <string>
#include <vector>

#include "text_import/format/column.hpp"

namespace textimport::analysis {

/// Sets the names, left to right, and the unique ones: a column without a name is called by its
/// number ("c3"), and a name that stood before gets the smallest number that makes it new ("a_2").
void set_names(std::vector<Column>& columns, std::vector<std::u16string> names);

/// The names that more than one column has, each once, in order; empty ones left out.
[[nodiscard]] std::vector<std::u16string> repeated_names(std::vector<Column> const& columns);

}  // namespace textimport::analysis
