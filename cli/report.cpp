// SPDX-License-Identifier: MIT

#include "cli/report.hpp"

#include <fmt/format.h>

#include "cli/display_text.hpp"
#include "cli/library_report.hpp"
#include "cli/preview.hpp"
#include "cli/survey_report.hpp"
#include "cli/table.hpp"
#include "cli/words.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/import_error.hpp"

namespace cli {

namespace {

using textio::enums::ColumnType;
using textio::enums::StrategyMode;

constexpr std::size_t table_indent = 4;

/// The names of the columns; empty when there are none.
std::vector<std::u16string> column_names(Answer const& answer) {
  std::vector<std::u16string> names;
  if (answer.survey && answer.survey->has_names) {
    for (auto const& column : answer.survey->columns) {
      names.push_back(column.name);
    }
  }
  return names;
}

/// The columns under their names, or under their types where there are no names.
std::vector<TableColumn> table_columns(Answer const& answer) {
  auto names = column_names(answer);
  bool const has_names = !names.empty();
  names.resize(answer.column_types.size());
  std::vector<TableColumn> columns;
  for (std::size_t i = 0; i < names.size(); ++i) {
    ColumnType const type = answer.column_types[i];
    columns.push_back(
        {has_names ? names[i] : *from_utf8(type_word(type)), type == ColumnType::Number});
  }
  return columns;
}

std::string rows_text(Answer const& answer, Preview const& preview, Settings const& settings) {
  TableSpace const space{.width = settings.width, .indent = table_indent};
  if (answer.strategy->mode() != StrategyMode::FixedWidth) {
    return aligned_table(table_columns(answer), preview.rows, space);
  }
  auto const& widths = answer.strategy->options().column_widths;
  auto names = column_names(answer);
  if (!names.empty()) {
    names.resize(widths.size());
  }
  return ruled_table(widths, names, preview.rows, space);
}

}  // namespace

std::string report(Answer const& answer, Settings const& settings, Colors const& colors) {
  Preview const preview = make_preview(answer, settings);
  std::string text =
      fmt::format("{}{}{}\n", colors.heading,
                  display_bytes(textimport::display_name(answer.path)).utf8, colors.reset);
  text += answer.survey ? survey_facts(answer, settings, preview)
                        : library_facts(answer, settings, preview);
  if (!preview.rows.empty()) {
    text += "\n" + rows_text(answer, preview, settings);
  }
  return text;
}

}  // namespace cli
