// SPDX-License-Identifier: MIT
//
// Tables of cases of bytes.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace textimport::made {

/// A row of a table, filled up with empty cells to eight.
using cells = std::vector<std::string>;

/// Calls `check` for each row of a file below tests/text_import/: UTF-8, where \xHH is a byte,
/// \u{H...} a character, \n and \r are line ends.
void for_each_row(std::string const& table, std::function<void(cells const&)> const& check);

}  // namespace textimport::made
