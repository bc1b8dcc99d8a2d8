// SPDX-License-Identifier: MIT
//
// Records are split elsewhere; here values lose what only marks them.
#include "text_import/table/rows.hpp"

#include <algorithm>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/readings/reading_options.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/splitting/record_splitter_internal.hpp"

namespace textimport {

namespace {

using view = std::u16string_view;

/// A value without its quotes and escapes, a doubled quote inside standing for one.
std::u16string plain_value(view const value, Format const& format, char16_t const escape) {
  char16_t const quote = format.quoting.quote;
  bool const is_quoted = analysis::stands_in(value, quote);
  view const inside = is_quoted ? value.substr(1, value.size() - 2) : value;
  auto plain =
      is_quoted ? analysis::with_single_quotes(inside, quote, escape) : std::u16string(inside);
  return escape == 0 ? plain
                     : analysis::without_escapes(plain, escape, quote, format.layout.delimiters);
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
  LineSyntax const syntax = splitting::line_syntax_of(format);
  splitting::read_records(options, reading_mode(format.layout.layout), syntax, data, most, fields);
  bool const is_split = !options.delimiters.empty();
  std::vector<Row> rows;
  for (std::size_t record = 0; record < std::min(fields.num_records(), most); ++record) {
    Row& row = rows.emplace_back();
    for (textio::Field const& field : fields.record(record)) {
      row.push_back(is_split ? plain_value(analysis::trimmed(field.view(), options.whitespace),
                                           format, syntax.escape)
                             : std::u16string(field.view()));
    }
  }
  return rows;
}

}  // namespace textimport
