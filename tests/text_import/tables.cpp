// SPDX-License-Identifier: MIT
#include "tests/text_import/tables.hpp"

#include <algorithm>

#include <unicode/unistr.h>

#include "tests/support/table.hpp"

namespace textimport::made {
namespace {

std::string unescaped(std::string const& field) {
  std::string result;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] != '\\') {
      result.push_back(field[i]);
    } else if (char const kind = field[++i]; kind == 'x') {
      result.push_back(static_cast<char>(std::stoi(field.substr(i + 1, 2), nullptr, 16)));
      i += 2;
    } else if (kind == 'u') {
      std::size_t const end = field.find('}', i);
      icu::UnicodeString(std::stoi(field.substr(i + 2, end - i - 2), nullptr, 16))
          .toUTF8String(result);
      i = end;
    } else {
      result.push_back(kind == 'n' ? '\n' : '\r');
    }
  }
  return result;
}

}  // namespace

void for_each_row(std::string const& table, std::function<void(cells const&)> const& check) {
  support::for_each_row("text_import/" + table, [&check](support::Row const& row) {
    cells row_cells;
    std::transform(row.cells.begin(), row.cells.end(), std::back_inserter(row_cells), unescaped);
    row_cells.resize(8);
    check(row_cells);
  });
}

}  // namespace textimport::made
