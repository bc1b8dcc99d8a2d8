// SPDX-License-Identifier: MIT
#include "tests/support/table.hpp"

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/text.hpp"

namespace support {

std::u16string Row::text(std::size_t const cell) const {
  std::string quoted = "\"";
  for (char const byte : cells.at(cell)) {
    quoted += (byte == '"' ? "\\" : "") + std::string(1, byte);
  }
  return value_of<std::u16string>(json::parse(quoted + '"'));
}

std::size_t Row::count(std::size_t const cell) const {
  return cells.at(cell) == "unknown" ? textio::unknown_count : std::stoull(cells.at(cell));
}

std::vector<std::size_t> Row::counts(std::size_t const cell) const {
  std::istringstream words(cells.at(cell));
  std::vector<std::size_t> numbers;
  for (std::size_t number = 0; words >> number;) {
    numbers.push_back(number);
  }
  EXPECT_TRUE(words.eof()) << cells.at(cell);
  return numbers;
}

void for_each_row(std::string const& table, std::function<void(Row const&)> const& check) {
  std::ifstream file(std::string(TFD_TESTS_FOLDER) + "/" + table);
  Row row;
  std::size_t num_rows = 0;
  std::size_t num_lines = 0;
  for (std::string line; std::getline(file, line); ++num_lines) {
    if (line.starts_with("with ")) {
      row.with = json::parse(line.substr(5));
    } else if (!line.empty() && !line.starts_with("# ")) {
      SCOPED_TRACE(table + ":" + std::to_string(num_lines + 1) + ": " + line);
      row.cells.clear();
      std::istringstream cells(line + '\t');
      for (std::string cell; std::getline(cells, cell, '\t');) {
        row.cells.push_back(cell);
      }
      check(row);
      ++num_rows;
    }
  }
  EXPECT_NE(num_rows, 0U) << "no rows in " << table;
}

}  // namespace support
