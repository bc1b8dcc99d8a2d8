// SPDX-License-Identifier: MIT
//
// Numbers are handed out in one pass: for each name the next number to try is remembered, so that
// many equal names do not cost the square of their number.
#include "text_import/analysis/describing/names_internal.hpp"

#include <cstddef>
#include <map>
#include <set>
#include <utility>

namespace textimport::analysis {

namespace {

std::u16string number_text(std::size_t const number) {
  std::string const digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::u16string usual_name(Column const& column, std::size_t const position) {
  return column.name.empty() ? u"c" + number_text(position + 1) : column.name;
}

}  // namespace

void set_names(std::vector<Column>& columns, std::vector<std::u16string> names) {
  names.resize(columns.size());
  std::set<std::u16string> taken(names.begin(), names.end());
  std::set<std::u16string> met;
  std::map<std::u16string, std::size_t> last_number;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    columns[i].name = std::move(names[i]);
    std::u16string const usual = usual_name(columns[i], i);
    bool const is_own = !columns[i].name.empty() && met.insert(usual).second;
    std::u16string unique = usual;
    std::size_t& number = last_number.try_emplace(usual, 1).first->second;
    while (!is_own && !taken.insert(unique).second) {
      unique = usual + u"_" + number_text(++number);
    }
    columns[i].unique_name = std::move(unique);
  }
}

std::vector<std::u16string> repeated_names(std::vector<Column> const& columns) {
  std::map<std::u16string_view, std::size_t> counts;
  std::vector<std::u16string> repeated;
  for (Column const& column : columns) {
    if (!column.name.empty() && ++counts[column.name] == 2) {
      repeated.push_back(column.name);
    }
  }
  return repeated;
}

}  // namespace textimport::analysis
