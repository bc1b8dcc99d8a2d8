// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/columns_internal.hpp"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

#include "text_import/analysis/describing/text_extent_internal.hpp"
#include "text_import/analysis/values/number_marks_internal.hpp"

namespace textimport::analysis {

namespace {

using Summaries = std::vector<ColumnSummary>;

/// The style that most columns of numbers show; empty when none does, or both do alike.
template <class StyleOf>
std::optional<MarkStyle> style_of_most(Summaries const& columns, StyleOf const& style_of) {
  std::array<std::size_t, 2> votes{};
  for (ColumnSummary const& column : columns) {
    if (NumberTally const* const numbers = column.numbers_of_column()) {
      if (auto const style = style_of(*numbers)) {
        ++votes[static_cast<std::size_t>(*style)];
      }
    }
  }
  if (votes[0] == votes[1]) {
    return std::nullopt;
  }
  return votes[0] > votes[1] ? MarkStyle::Point : MarkStyle::Comma;
}

/// One file is written in one style, as far as its columns leave it open.
FileStyle style_of_file(Summaries const& columns, std::u16string_view const delimiter) {
  if (auto const shown = style_of_most(columns, std::mem_fn(&NumberTally::own_style))) {
    return {*shown, StyleBasis::Proof};
  }
  if (auto const hint = style_of_most(columns, std::mem_fn(&NumberTally::hint))) {
    return {*hint, StyleBasis::Hint};
  }
  bool const has_open_commas = std::ranges::any_of(columns, [](ColumnSummary const& column) {
    NumberTally const* const numbers = column.numbers_of_column();
    return numbers != nullptr && numbers->count_open_commas() > 0;
  });
  if (delimiter == u";" && has_open_commas) {
    return {MarkStyle::Comma, StyleBasis::Delimiter};
  }
  return {};
}

}  // namespace

std::vector<DescribedColumn> describe_columns(Reading const& r, HeaderRows const& rows,
                                              LineIndex const& lines,
                                              std::vector<Column> const& given) {
  Summaries summaries(r.block.columns, ColumnSummary(lines.is_ascii()));
  auto const& fields = *r.strategy->field_array();
  for (std::size_t i = rows.first_data; i <= rows.last_data; ++i) {
    if (r.records[i].num_fields != r.block.columns) {
      continue;
    }
    auto const record = fields.record(i);
    for (std::size_t column = 0; column < std::min(record.size(), summaries.size()); ++column) {
      summaries[column].add(record[column].view(), r.values);
    }
  }
  FileStyle const style = style_of_file(summaries, r.delimiter);
  bool const are_given = given.size() == summaries.size();
  std::vector<DescribedColumn> columns;
  columns.reserve(summaries.size());
  for (std::size_t i = 0; i < summaries.size(); ++i) {
    columns.push_back(summaries[i].finish(style, are_given ? &given[i] : nullptr));
  }
  return columns;
}

DescribedColumn describe_lines(LineIndex const& lines, std::size_t const first,
                               std::size_t const end, ValueGrammar const& values,
                               std::vector<Column> const& given) {
  constexpr std::size_t enough = 1000;
  Summaries summary(1, ColumnSummary(lines.is_ascii()));
  for (std::size_t i = first; i < std::min(end, first + enough); ++i) {
    summary.front().add(lines[i], values);
  }
  return summary.front().finish(style_of_file(summary, {}),
                                given.size() == 1 ? given.data() : nullptr);
}

void place_columns(std::vector<Column>& columns, std::vector<std::size_t> const& widths,
                   LineIndex const& lines, std::size_t const first, std::size_t const end,
                   std::string_view const encoding) {
  constexpr std::size_t lines_compared = 250;
  std::size_t const last = std::min(end, first + lines_compared);
  std::size_t begin = 0;
  for (std::size_t column = 0; column < std::min(columns.size(), widths.size()); ++column) {
    std::size_t const behind = begin + widths[column];
    columns[column].code_units = Extent{begin, behind};
    columns[column].characters = extent_in_characters(lines, first, last, begin, behind);
    columns[column].bytes = extent_in_bytes(lines, first, last, begin, behind, encoding);
    begin = behind;
  }
}

char16_t common_decimal_mark(std::vector<Column> const& columns) {
  auto const count = [&](char16_t const mark) {
    return std::ranges::count_if(
        columns, [&](Column const& column) { return column.numbers.decimal_mark == mark; });
  };
  if (count(u',') > count(u'.')) {
    return u',';
  }
  return count(u'.') > 0 ? u'.' : u'\0';
}

}  // namespace textimport::analysis
