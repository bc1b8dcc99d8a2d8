// SPDX-License-Identifier: MIT
//
// Tables of cases: files of lines with cells apart by tabs. A line that begins with # and a
// blank is a comment; a line "with {...}" says what the rows below it have in common.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/json.hpp"

namespace support {

struct Row {
  std::vector<std::string> cells;
  json with = json::object();

  /// The cell as a text, in which \n, \r, \t, \\ and \uXXXX mean what they mean in JSON.
  [[nodiscard]] std::u16string text(std::size_t cell) const;

  /// The cell as a number, "unknown" for none.
  [[nodiscard]] std::size_t count(std::size_t cell) const;

  /// The numbers in the cell, apart by blanks.
  [[nodiscard]] std::vector<std::size_t> counts(std::size_t cell) const;

  /// The cell as JSON.
  [[nodiscard]] json value(std::size_t cell) const { return json::parse(cells.at(cell)); }
};

/// Calls `check` for each row of a table in the folder of the tests; a failure says which it was.
/// A table without rows is an error.
void for_each_row(std::string const& table, std::function<void(Row const&)> const& check);

}  // namespace support
