// SPDX-License-Identifier: MIT
//
// The engine's reader splits the records; here values lose what only marks them.
#include "text_import/table/rows.hpp"

#include <algorithm>

#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_import/analysis/readings/reading_options.hpp"
#include "text_import/analysis/values/text_internal.hpp"

namespace textimport {

namespace {

using view = std::u16string_view;

/// A quoted value without its quotes, a doubled one inside standing for one.
std::u16string without_quotes(view const value, char16_t const quote) {
  return analysis::stands_in(value, quote)
             ? analysis::with_single_quotes(value.substr(1, value.size() - 2), quote)
             : std::u16string(value);
}

/// A rule whose value Error is turned into the plain one.
template <class Rule>
void forgive(Rule& rule) {
  rule = rule == Rule::Error ? Rule{} : rule;
}

}  // namespace

std::vector<Row> read_rows(Format const& format, view const data, std::size_t const most) {
  auto options = reading_options(format);
  forgive(options.consecutive_delimiters_rule);
  forgive(options.leading_delimiters_rule);
  forgive(options.trailing_delimiters_rule);
  forgive(options.empty_lines);
  forgive(options.partial_field_rule);
  textio::FieldArray fields;
  textio::read_records(options, reading_mode(format.layout.layout), textio::Field(data), most,
                       textio::unknown_count, fields);
  bool const is_split = !options.delimiters.empty();
  std::vector<Row> rows;
  for (std::size_t record = 0; record < std::min(fields.num_records(), most); ++record) {
    Row& row = rows.emplace_back();
    for (textio::Field const& field : fields.record(record)) {
      row.push_back(is_split ? without_quotes(analysis::trimmed(field.view(), options.whitespace),
                                              format.quoting.quote)
                             : std::u16string(field.view()));
    }
  }
  return rows;
}

}  // namespace textimport
