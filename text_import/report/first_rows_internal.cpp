// SPDX-License-Identifier: MIT
#include "text_import/report/first_rows_internal.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

#include "text_import/format/utf.hpp"
#include "text_import/format/words.hpp"
#include "text_import/report/text_table_internal.hpp"
#include "text_import/table/rows.hpp"

namespace textimport::reporting {

namespace {

std::u16string_view data_of(Analysis const& analysis) {
  Region const& region = analysis.format.region;
  std::u16string_view const text = analysis.lines.text();
  std::size_t const begin = analysis.lines.start(region.first_line);
  std::size_t const end = region.end_line ? analysis.lines.start(*region.end_line) : text.size();
  return text.substr(begin, std::max(begin, end) - begin);
}

std::vector<TableColumn> table_columns(Format const& format) {
  std::vector<TableColumn> columns;
  for (Column const& column : format.columns) {
    bool const is_number = column.type == ValueType::Integer || column.type == ValueType::Real ||
                           column.type == ValueType::Complex;
    columns.push_back(
        {has_names(format) ? column.name : *from_utf8(word_of(column.type)), is_number});
  }
  return columns;
}

/// The names above the ruler: one for each width, or none.
std::vector<std::u16string> ruler_names(Format const& format) {
  std::vector<std::u16string> names;
  if (has_names(format)) {
    for (Column const& column : format.columns) {
      names.push_back(column.name);
    }
    names.resize(format.layout.widths.size());
  }
  return names;
}

}  // namespace

std::string first_rows(Analysis const& analysis, ReportStyle const& style) {
  Format const& format = analysis.format;
  std::vector<Row> const rows = read_rows(format, data_of(analysis), style.rows);
  if (rows.empty()) {
    return {};
  }
  constexpr std::size_t indent = 4;
  TableSpace const space{.width = style.width, .indent = indent};
  return format.layout.layout == Layout::FixedWidth
             ? ruled_table(format.layout.widths, ruler_names(format), rows, space)
             : aligned_table(table_columns(format), rows, space);
}

}  // namespace textimport::reporting
