// SPDX-License-Identifier: MIT
//
// One text to one type.
#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"

namespace {

using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using textio::strategies::classify_field;

/// By code.
constexpr std::array names{
    "reserved", "number",      "text",   "datetime",       "",         "undecided", "", "date",
    "duration", "hexadecimal", "binary", "short_duration", "delimiter"};

std::string type_of(TypeAnalyzerOptions const& options, std::u16string_view const text) {
  return names.at(static_cast<std::size_t>(classify_field(options, text)));
}

TEST(FieldClassifier, Types) {
  support::for_each_row("strategies/field_types.tsv", [](support::Row const& row) {
    auto const options = support::record_of<TypeAnalyzerOptions>(row.with);
    for (std::size_t cell = 1; cell < row.cells.size(); ++cell) {
      EXPECT_EQ(type_of(options, row.text(cell)), row.cells[0]) << row.cells[cell];
    }
  });
}

// The table's other column is that of the analysis, which is more lenient.
TEST(FieldClassifier, TypesBesideLenientOnes) {
  support::for_each_row("text_import/analysis/values/values.tsv", [](support::Row const& row) {
    EXPECT_EQ(type_of({}, row.text(0)), row.cells.at(1));
  });
}

TEST(FieldClassifier, LongTexts) {
  std::size_t const many = 2'000'000;
  std::u16string const ones(many, u'1');
  std::u16string const spaces(many, u' ');
  std::u16string groups;
  for (std::size_t i = 0; i < many; ++i) {
    groups += u"1:";
  }
  EXPECT_EQ(type_of({}, ones), "number");
  EXPECT_EQ(type_of({}, ones + u'x'), "text");
  EXPECT_EQ(type_of({}, u"0x" + ones), "hexadecimal");
  EXPECT_EQ(type_of({}, ones + u':' + ones), "short_duration");
  EXPECT_EQ(type_of({}, groups), "text");
  EXPECT_EQ(type_of({}, u"1:2:3" + spaces + u"2024-01-05"), "datetime");
  EXPECT_EQ(type_of({}, spaces + u"2024-01-05"), "text");
}

}  // namespace
