// SPDX-License-Identifier: MIT
//
// What the readers make of texts, for callers and for samples.
#include <gtest/gtest.h>

#include "tests/support/errors.hpp"
#include "tests/support/json.hpp"
#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/reading/delimited_scanner_internal.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/reading/read_with_mode_internal.hpp"

namespace {

using support::show;
using textio::Field;
using textio::FieldArray;
using textio::ReadSummary;
using textio::unknown_count;
using textio::enums::StrategyMode;
using textio::parser::options;

/// How a text is read, beside the options.
struct How {
  StrategyMode mode = StrategyMode::Delimited;
  std::size_t records = unknown_count;
  std::size_t lines = unknown_count;
  std::size_t max_fields = unknown_count;
  bool sampling = false;
};

template <class Visit>
void visit_members(How& how, Visit const& visit) {
  visit("mode", how.mode);
  visit("records", how.records);
  visit("lines", how.lines);
  visit("max_fields", how.max_fields);
  visit("sampling", how.sampling);
}

ReadSummary read(How const& how, options const& rules, std::u16string_view const text,
                 FieldArray& fields) {
  return textio::reading::read_with_mode(rules, how.mode, text,
                                         {how.records, how.lines, how.sampling},
                                         {fields, rules.whitespace, how.max_fields});
}

/// Record by record, each from where the one before it ended.
FieldArray read_one_by_one(How how, options const& rules, std::u16string_view text) {
  how.records = 1;
  FieldArray fields;
  for (bool goes_on = true; goes_on && !text.empty();) {
    auto const summary = read(how, rules, text, fields);
    text.remove_prefix(std::min(summary.units_consumed, text.size()));
    goes_on = summary.units_consumed != 0;
  }
  return fields;
}

class Reading : public testing::TestWithParam<char const*> {};

TEST_P(Reading, GivesTheFields) {
  support::for_each_row(GetParam(), [](support::Row const& row) {
    How how;
    options rules;
    support::read_members(row.with, how, rules);
    std::u16string const text = row.text(0);
    FieldArray fields;
    std::string error;
    support::catch_parser_error([&] { read(how, rules, text, fields); },
                                [&](auto const& name, auto const& caught) {
                                  error = "!" + std::string(name) + " " +
                                          std::to_string(caught.record) + "," +
                                          std::to_string(caught.field) + "," + show(caught.token);
                                  EXPECT_EQ(show(caught.detail), "");
                                });
    std::string const shown = show(fields);
    EXPECT_EQ(shown + (shown.empty() || error.empty() ? "" : " ") + error, row.cells.at(1));
    bool const adds_a_record = rules.empty_lines == textio::enums::EmptyLineRule::Read;
    bool const is_whole = how.records == unknown_count && how.lines == unknown_count;
    if (is_whole && !adds_a_record && !how.sampling && error.empty()) {
      EXPECT_EQ(show(read_one_by_one(how, rules, text)), shown) << "one by one";
    }
  });
}

INSTANTIATE_TEST_SUITE_P(, Reading,
                         testing::Values("reading/delimited.tsv", "reading/comments.tsv",
                                         "reading/columns_and_lines.tsv"));

TEST(ReadRecords, SaysHowFarItGot) {
  support::for_each_row("reading/summaries.tsv", [](support::Row const& row) {
    How how;
    options rules;
    support::read_members(row.with, how, rules);
    std::u16string const text = row.text(0);
    FieldArray fields;
    auto const summary =
        textio::read_records(rules, how.mode, Field(text), how.records, how.lines, fields);
    EXPECT_EQ(show(fields), row.cells.at(1));
    EXPECT_EQ(show({summary.units_consumed, summary.lines_scanned, summary.records_stored}),
              row.cells.at(2));
    auto const again =
        textio::read_records(rules, how.mode, Field(text), how.records, how.lines, fields);
    EXPECT_EQ(again.records_stored, summary.records_stored) << "behind records that are there";
  });
}

TEST(FindLineStart, SkipsBlanksAndIgnoredDelimiters) {
  support::for_each_row("reading/line_start.tsv", [](support::Row const& row) {
    auto const how = support::record_of<options>(row.with);
    textio::parser::DelimitedRecordReader const reader(how);
    std::u16string const text = row.text(0);
    EXPECT_EQ(reader.find_line_start(Field(text), row.count(1)), row.count(2));
  });
}

}  // namespace
