// SPDX-License-Identifier: MIT
//
// The acceptance test on made-up scores, and the candidates that a sample gives.
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/decision.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/detection/candidates_internal.hpp"
#include "text_format_detection/reading/sampler_internal.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"

namespace {

using textio::detection::RejectionClause;
using textio::parser::options;
using Layout = textio::enums::Layout;

TEST(Candidates, AcceptanceTest) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();

  struct AcceptRow {
    std::size_t num_records;
    double variation;
    std::int32_t fields;
    double prior_rank;
    bool ignore;
    RejectionClause expected;
  };

  std::vector<AcceptRow> const rows = {
      {1, 0.0, 2, 3.5, true, RejectionClause::None},
      {1, 0.0, 2, 4.0, true, RejectionClause::SingleRecordUncommonDelimiter},
      {1, 0.0, 2, infinity, false, RejectionClause::SingleRecordUncommonDelimiter},
      {1, 0.0, 1, 0.0, false, RejectionClause::SingleRecordOneField},
      {1, 1.0, 2, 0.0, true, RejectionClause::SingleRecordIrregular},
      {1, nan, 2, 0.0, true, RejectionClause::SingleRecordIrregular},
      {1, 0.99, 2, 0.0, true, RejectionClause::None},
      {2, 0.99, 2, infinity, true, RejectionClause::None},
      {2, 1.0, 2, 0.0, true, RejectionClause::Irregular},
      {2, nan, 2, 0.0, true, RejectionClause::Irregular},
      {2, infinity, 1, 0.0, false, RejectionClause::Irregular},
      {2, 0.0, 1, 0.0, true, RejectionClause::OneField},
      {2, 0.0, 1, 0.0, false, RejectionClause::None},
      {0, 0.0, 1, 0.0, false, RejectionClause::OneField},
      {0, 0.0, 2, 0.0, true, RejectionClause::None},
      {2, 0.0, -5, 0.0, true, RejectionClause::OneField},
  };
  for (std::size_t row = 0; row < rows.size(); ++row) {
    auto const& [num_records, variation, fields, prior_rank, ignore, expected] = rows[row];
    textio::StrategyValuation const score{.data_variation = variation,
                                          .num_records = num_records,
                                          .typical_fields = fields,
                                          .prior_rank = prior_rank};
    EXPECT_EQ(textio::detection::find_rejection(score, ignore), expected) << "row " << row;
  }
}

/// The fates of all strategies that are sampled for the text, and in what order they compete.
std::string candidates(std::u16string_view const text, options const& how) {
  textio::Field const sample(text);
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;
  textio::reading::SamplingContext context(sample, 100);
  auto const lines = std::make_shared<textio::LineReaderStrategy>(how, types);
  textio::reading::sample_strategy(context, lines, true);
  textio::detection::DetectionReport report;
  auto const list = textio::detection::generate_candidates(
      {how, types, *lines->field_array(), context, &report.sampled});
  auto const unnoticed =
      textio::detection::generate_candidates({how, types, *lines->field_array(), context, nullptr});
  EXPECT_EQ(unnoticed.size(), list.size());
  std::size_t accepted = 0;
  for (auto const& sampled : report.sampled) {
    if (sampled.candidate) {
      EXPECT_EQ(sampled.strategy, list.at(*sampled.candidate)) << support::show(text);
      ++accepted;
    }
  }
  EXPECT_EQ(accepted, list.size());
  bool const is_fixed =
      !list.empty() && list.front()->mode() == textio::enums::StrategyMode::FixedWidth;
  return support::show_sampled(report) +
         (is_fixed ? " h" + std::to_string(list.front()->header_lines()) : "");
}

struct CandidateRow {
  std::u16string_view text;
  options how;
  std::string_view expected;
};

void expect_candidates(std::vector<CandidateRow> const& rows) {
  for (auto const& [text, how, expected] : rows) {
    EXPECT_EQ(candidates(text, how), expected) << support::show(text);
  }
}

TEST(Candidates, OneForEachCharacter) {
  std::u16string_view const text = u"a,b.c\nd,e.f\ng,h.i,\n";
  expect_candidates({
      {text, {}, "delimited <,> #0, delimited <.> #1"},
      {text, {.decimal_separator = u'.'}, "delimited <,> #0"},
      {text, {.thousands_separator = u",."}, "delimited <.> #0"},
      {text, {.thousands_separator = u"x", .decimal_separator = u','}, "delimited <.> #0"},
      {u"a,b|c,d", {}, "delimited <,> #0, delimited <|> uncommon delimiter"},
      {u"a,b\nc_d,e\nf\n", {}, "delimited <_> #0, delimited <,> #1"},
      {u"h\na,b,c,d\ne\nf\n", {}, "delimited <,> #0"},
      {u"", {}, ""},
  });
}

TEST(Candidates, Blanks) {
  std::u16string_view const ragged = u"a b\ncc d\ne f\n";
  std::u16string_view const padded = u"a  b  1\ncc d  2\ne     3\nf  g  4\nh  i  5\nj  k  6\n";
  expect_candidates({
      // not padded: both readings of the blanks are tested for themselves
      {ragged, {}, "space-aligned #0, delimited < > #1"},
      {u"x;a b\nc;d e\nf;g h\n", {}, "delimited <;> #0, space-aligned #1, delimited < > #2"},
      {u"a\tb \nc\td \n", {}, "delimited <\\t> #0, space-aligned #1, delimited < > less typed"},
      {u"a b", {}, "space-aligned #0, delimited < > #1"},
      // padded: columns compete with the blanks
      {padded, {}, "space-aligned replaced, fixed-width 2 2 3 #0, delimited < > less typed h0"},
      {padded, {.layout = Layout::SpaceAligned}, "space-aligned #0, delimited < > less typed"},
      {u"a b\nc d\ne f\n", {}, "space-aligned #0, delimited < > #1"},
      {u"c d e f g\na b      \n",
       {.header_lines = 0, .detect_header_lines = false},
       "space-aligned replaced, fixed-width 1 2 2 2 2 #0, delimited < > less typed h0"},
  });
}

TEST(Candidates, FixedWidthAskedFor) {
  // behind "h": the header lines of a fixed-width candidate
  std::u16string_view const text = u"heading\na b,c\nd e,f\n";
  std::u16string_view const short_title = u"t\nab123\ncd456\nef789\n";
  options found{.layout = Layout::FixedWidth};
  expect_candidates({{text, found, "space-aligned replaced, fixed-width 1 4 #0 h1"}});
  options given = found;
  given.column_widths = {2, 3};
  expect_candidates({{text, given, "fixed-width 2 3 #0 h0"},
                     // the block of equally long lines begins behind the title
                     {short_title, given, "fixed-width 2 3 #0 h1"}});
  given.detect_header_lines = found.detect_header_lines = false;
  given.header_lines = found.header_lines = 2;
  expect_candidates({{short_title, given, "fixed-width 2 3 #0 h2"},
                     {text, found, "space-aligned replaced, fixed-width 1 4 #0 h2"}});
  // nothing but header lines
  found.header_lines = 3;
  expect_candidates({{text, found, "fixed-width 1 #0 h3"}});
}

}  // namespace
