// SPDX-License-Identifier: MIT
//
// Reading for callers: block by block with the caller's own rules, and samples for strategies.
#include "text_format_detection/reading/read_records.hpp"

#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_format_detection/reading/sampler_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using textio::Field;
using textio::FieldArray;
using textio::unknown_count;
using textio::enums::StrategyMode;
using textio::parser::options;
using textio::reading::SamplingContext;
using Empty = textio::enums::EmptyLineRule;

TEST(ReadRecords, Summary) {
  options const how{.delimiters = {u","},
                    .comment_style = {u"/*", u"*/"},
                    .column_widths = {1, 2},
                    .empty_lines = Empty::Read};
  auto const all = unknown_count;
  for (auto const& [mode, text, record_count, line_limit, expected, expected_summary] :
       support::Rows<StrategyMode, std::u16string_view, std::size_t, std::size_t, std::string_view,
                     std::string_view>{
           {StrategyMode::Delimited, u"a,b\r\n\nc", all, all, "a|b / () / c", "7 3 3"},
           {StrategyMode::Delimited, u"a,b\n\nc\n", 2, all, "a|b / ()", "5 2 2"},
           {StrategyMode::Delimited, u"a\n", all, all, "a / ()", "2 1 2"},
           {StrategyMode::Delimited, u"a\n", 1, all, "a", "2 1 1"},
           {StrategyMode::SpaceAligned, u"a\n/*\n*/\nb\nc", all, 3, "a / b", "10 4 2"},
           {StrategyMode::Delimited, u"/*x*/a\nb", 1, all, "a", "7 1 1"},
           {StrategyMode::Delimited, u"a\uFFFFb", all, all, "a", "1 1 1"},
           {StrategyMode::Delimited, u"", all, all, "", "0 0 0"},
           {StrategyMode::FixedWidth, u"abcd\ne\n", all, all, "a|bc / e", "7 2 2"},
           {StrategyMode::LineReader, u"a,b\nc", all, 1, "a,b", "4 1 1"},
           {static_cast<StrategyMode>(4), u"a", all, all, "", "0 0 0"},
       }) {
    FieldArray fields;
    auto const summary =
        textio::read_records(how, mode, Field(text), record_count, line_limit, fields);
    EXPECT_EQ(support::show(fields), expected) << support::show(text);
    EXPECT_EQ(
        support::show({summary.units_consumed, summary.lines_scanned, summary.records_stored}),
        expected_summary)
        << support::show(text);
  }
}

TEST(ReadRecords, OneByOneGivesTheSameAsAllAtOnce) {
  options const how{.delimiters = {u",", u"::"}, .comment_style = {u"#"}, .column_widths = {2, 1}};
  for (std::u16string_view const text :
       {u"a,b\nc::d,\n\n#x\n  e\n", u"\"a\nb\",c\r\nd\r\r\ne", u"#x", u"ab\nabcdef\n#x\n\na"}) {
    for (StrategyMode const mode :
         {StrategyMode::Delimited, StrategyMode::FixedWidth, StrategyMode::LineReader}) {
      FieldArray at_once;
      textio::read_records(how, mode, Field(text), unknown_count, unknown_count, at_once);
      FieldArray one_by_one;
      std::size_t pos = 0;
      std::size_t stored = 0;
      while (pos < text.size()) {
        auto const summary =
            textio::read_records(how, mode, Field(text.substr(pos)), 1, unknown_count, one_by_one);
        ASSERT_GT(summary.units_consumed, 0U) << support::show(text.substr(pos));
        pos += summary.units_consumed;
        stored += summary.records_stored;
      }
      EXPECT_EQ(support::show(one_by_one), support::show(at_once)) << support::show(text);
      EXPECT_EQ(stored, at_once.num_records());
    }
  }
}

TEST(ReadRecords, AnEndMarkAsLineEndingIsNotConsumed) {
  options const how{.line_endings = {u"\uFFFF"}, .column_widths = {2}};
  for (std::u16string_view const text : {u"ab", u"abc"}) {
    FieldArray fields;
    auto const summary = textio::read_records(how, StrategyMode::FixedWidth, Field(text),
                                              unknown_count, unknown_count, fields);
    EXPECT_EQ(summary.units_consumed, text.size());
    EXPECT_EQ(summary.lines_scanned, 1U);
  }
}

TEST(SampleStrategy, RecordLimitAndHeaderLines) {
  Field const text(u"a\nb\n\nc\nd\ne");
  auto const all = unknown_count;
  for (auto const& [detect, header_lines, record_limit, expected] :
       support::Rows<bool, std::size_t, std::size_t, std::string_view>{
           {false, 2, 1, "a / b / () / c"},
           {true, 2, 1, "a"},
           {false, 0, 2, "a / b"},
           {false, 1, all, "a / b / () / c / d / e"},
           {false, all, 1, "a / b / () / c / d / e"},
           {true, all, 0, ""}}) {
    options const how{.header_lines = header_lines, .detect_header_lines = detect};
    auto const strategy = std::make_shared<textio::DelimitedStrategy>(
        how, ostrel::io::text::typedetection::TypeAnalyzerOptions{}, u',');
    SamplingContext context(text, record_limit);
    textio::reading::sample_strategy(context, strategy, false);
    EXPECT_EQ(support::show(*strategy->field_array()), expected) << header_lines;
    EXPECT_FALSE(strategy->is_evaluated());
    // at most once
    Field const other_text(u"x");
    SamplingContext other(other_text, 1);
    textio::reading::sample_strategy(other, strategy, true);
    EXPECT_EQ(support::show(*strategy->field_array()), expected) << header_lines;
    EXPECT_EQ(other.fields, nullptr);
  }
}

TEST(SampleStrategy, FixedWidthKeepsOneFieldForEachColumn) {
  auto const sample = [](std::vector<std::size_t> widths) {
    auto const strategy = std::make_shared<textio::FixedWidthStrategy>(
        options{}, ostrel::io::text::typedetection::TypeAnalyzerOptions{}, std::move(widths));
    Field const text(u"abcdef\nabc\n");
    SamplingContext context(text, unknown_count);
    context.max_fields = 1;
    textio::reading::sample_strategy(context, strategy, true);
    EXPECT_FALSE(context.limit_fields);
    EXPECT_EQ(context.max_fields, unknown_count);
    EXPECT_TRUE(strategy->is_evaluated());
    return support::show(*strategy->field_array());
  };
  EXPECT_EQ(sample({1, 2, 1}), "a|bc|d / a|bc");
  EXPECT_EQ(sample({}), "");  // records without fields, which the scoring drops
}

TEST(SampleStrategy, AnErrorLeavesTheStrategyUnsampled) {
  options how{.empty_lines = Empty::Error};

  struct Plain : textio::GenericStrategy {
    Plain(textio::parser::options const& o, StrategyMode const mode)
        : GenericStrategy(o, {}, mode) {}
  };

  auto const strict = std::make_shared<Plain>(how, StrategyMode::LineReader);
  Field const text(u"a\n\n");
  SamplingContext context(text, 5);
  EXPECT_THROW(textio::reading::sample_strategy(context, strict, true),
               textio::parser::exception::empty_line_rule);
  EXPECT_FALSE(strict->is_sampled());
  EXPECT_EQ(support::show(*context.fields), "a");
  auto const unknown = std::make_shared<Plain>(how, static_cast<StrategyMode>(4));
  textio::reading::sample_strategy(context, unknown, true);
  EXPECT_FALSE(unknown->is_sampled());
  EXPECT_EQ(support::show(*context.fields), "");
}

TEST(EvaluateStrategy, SamplesAndScoresOnce) {
  auto const strategy = std::make_shared<textio::DelimitedStrategy>(
      options{}, ostrel::io::text::typedetection::TypeAnalyzerOptions{}, u',');
  auto const& score = textio::evaluate_strategy(strategy, Field(u"a,b\nc,d\n"), 10);
  EXPECT_EQ(score.num_records, 2U);
  EXPECT_EQ(score.num_variables, 2U);
  EXPECT_EQ(&textio::evaluate_strategy(strategy, Field(u"x"), 10), &score);
  EXPECT_EQ(strategy->valuation().num_records, 2U);
}

}  // namespace
