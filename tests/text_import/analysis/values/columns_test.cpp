// SPDX-License-Identifier: MIT
//
// What the values of a column say of it: its type, and how they are written.
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/format/words.hpp"

namespace textimport {
namespace {

using support::json;
using support::show;

std::string show_mark(std::string const& name, char16_t const mark) {
  return mark == 0 ? "" : " " + name + '=' + (mark == u' ' ? "blank" : show({&mark, 1}));
}

std::string show_words(std::string const& name, std::vector<std::u16string> const& words) {
  std::string text;
  for (std::u16string const& word : words) {
    text += (text.empty() ? " " + name + '=' : ",") + show(word);
  }
  return text;
}

std::string show_numbers(NumberFormat const& numbers) {
  return show_mark("decimal", numbers.decimal_mark) +
         show_mark("thousands", numbers.thousands_mark) + (numbers.percent ? " percent" : "") +
         (numbers.per_mille ? " mille" : "") +
         (numbers.currency.empty() ? "" : " currency=" + show(numbers.currency)) +
         (numbers.parentheses_are_negative ? " parentheses" : "") +
         (numbers.minus_is_behind ? " behind" : "") + show_words("flags", numbers.flags) +
         (numbers.epoch == EpochUnit::None ? "" : " epoch=" + std::string(word_of(numbers.epoch)));
}

std::string show_dates(DateFormat const& dates) {
  return (dates.order == DateOrder::None ? "" : " " + std::string(word_of(dates.order))) +
         (dates.pattern.empty() ? "" : " " + show(dates.pattern)) +
         (dates.zone.empty() ? "" : " zone=" + show(dates.zone));
}

std::string show(Column const& column, ColumnEvidence const& counts, double const certainty) {
  std::ostringstream out;
  out << word_of(column.type) << " " << counts.fitting << "/" << counts.values
      << (column.leading_zeros ? " zeros" : "") << show_words("missing", column.missing_words)
      << show_numbers(column.numbers) << show_dates(column.dates)
      << show_words("true", column.true_words) << show_words("false", column.false_words);
  for (auto const& [name, number] : {std::pair{" open=", counts.open_marks},
                                     {" other=", counts.other_marks},
                                     {" empty=", counts.empty}}) {
    out << (number > 0 ? name + std::to_string(number) : "");
  }
  return out.str() + (counts.values > 1 && certainty < 0.85 ? " unsure" : "");
}

/// A file of a column of names, the column in question and one beside it.
std::u16string file_of(std::vector<std::u16string> const& values, json const& with) {
  std::u16string const delimiter = support::to_utf16(with.value("delimiter", "\t"));
  json const beside = with.value("beside", json::array());
  std::u16string text = u"key" + delimiter + support::to_utf16(with.value("name", "what"));
  text += beside.empty() ? u"\n" : delimiter + u"beside\n";
  for (std::size_t i = 0; i < values.size(); ++i) {
    text += u"key" + std::u16string(i % 3, u'y') + delimiter + u'"' + values[i] + u'"';
    if (!beside.empty()) {
      text += delimiter + support::to_utf16(beside.at(i).get<std::string>());
    }
    text += u'\n';
  }
  return text;
}

TEST(columns, are_what_their_values_say) {
  support::for_each_row("text_import/analysis/values/columns.tsv", [](support::Row const& row) {
    std::vector<std::u16string> values;
    for (std::size_t cell = 1; cell < row.cells.size(); ++cell) {
      values.push_back(row.text(cell));
    }
    std::u16string const text = file_of(values, row.with);
    Request request;
    request.delimiters = {support::to_utf16(row.with.value("delimiter", "\t"))};
    request.header_lines = 1;
    Analysis const found = analyse({text}, request);
    ASSERT_GE(found.format.columns.size(), 2U);
    ASSERT_EQ(found.certainty.columns.size(), found.format.columns.size());
    Column const& column = found.format.columns[1];
    double const certainty = found.certainty.columns[1];
    EXPECT_TRUE(certainty >= 0 && certainty <= 1) << certainty;
    EXPECT_EQ(show(column, found.evidence.columns[1], certainty), row.cells[0]);
    for (std::u16string const& value : values) {
      bool const is_missing = std::ranges::count(column.missing_words, value) > 0;
      EXPECT_TRUE(
          column.dates.pattern.empty() || is_missing ||
          ostrel::io::text::typeconversion::is_datetime(textio::Field(value), column.dates.pattern))
          << "the pattern reads " << support::show(value);
    }
  });
}

}  // namespace
}  // namespace textimport
