// SPDX-License-Identifier: MIT
//
// What JSON says of analyses. That all of it follows the schema is checked over real answers by
// tests/schema/validate.
#include "text_import/report/json_report.hpp"

#include <cmath>
#include <limits>
#include <utility>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/table.hpp"
#include "text_import/analysis/engine_margin.hpp"
#include "text_import/format/format_json.hpp"
#include "text_import/format/json_values_internal.hpp"

namespace textimport {
namespace {

using nlohmann::json;

Analysis analysis_of(std::u16string_view const text, Request const& request = {}) {
  TextSample sample;
  sample.text = text;
  return analyse(sample, request);
}

ReportSubject subject_of(std::string const& path) {
  ReportSubject subject;
  subject.path = path;
  return subject;
}

constexpr std::u16string_view table =
    u"day;price\n2024-01-02;1,5\n2024-01-03;2,25\n2024-01-04;3,0\n";

TEST(json_report, holds_the_format_as_it_is_saved) {
  Analysis const analysis = analysis_of(table);
  json const report = json::parse(report_json(analysis, subject_of("a.csv")));
  EXPECT_EQ(report["path"], "a.csv");
  EXPECT_EQ(report["num_columns"], 2);
  EXPECT_EQ(report["evidence"]["encoding_reason"], nullptr);
  EXPECT_TRUE(format_from_json(report["format"].dump()).format == analysis.format);
  EXPECT_FALSE(report.contains("explanation"));
  json explanation = json::parse(explanation_json(analysis, subject_of("a.csv")));
  EXPECT_EQ(explanation["explanation"]["candidates"].size(), analysis.evidence.candidates.size());
  explanation.erase("explanation");
  EXPECT_EQ(explanation, report);
}

TEST(json_report, is_one_line_of_ascii_whatever_the_text_and_the_path_hold) {
  std::u16string const odd = u"n\u00e4me;\U0001F600\n1;\u2028\n2;\u0085\n3;\u007f\n";
  std::string const line = explanation_json(analysis_of(odd), subject_of("a\xff\n.csv"));
  EXPECT_EQ(line.find('\n'), line.size() - 1);
  for (char const c : line.substr(0, line.size() - 1)) {
    EXPECT_TRUE(c >= ' ' && c <= '\x7f') << line;
  }
  EXPECT_EQ(json::parse(line)["path_bytes"], "61ff0a2e637376");
  EXPECT_EQ(json::parse(line)["path"], "a\uFFFD\n.csv");
}

TEST(json_report, tells_of_a_broken_rule_where_it_is) {
  Request request;
  request.delimiters = {u","};
  request.rules.consecutive_delimiters = textio::enums::ConsecutiveDelimitersRule::Error;
  json const report =
      json::parse(report_json(analysis_of(u"a,b,c\n1,2,3\n4,,6\n", request), subject_of("-")));
  EXPECT_EQ(report["violation"]["rule"], "consecutive-delimiters");
  EXPECT_EQ(report["violation"]["line"], 2);
  EXPECT_EQ(report["evidence"]["engine"], nullptr);
}

TEST(json_report, of_an_error_says_its_kind) {
  ImportError error(ImportErrorKind::BadBytes, "x", "bytes are bad");
  error.at_byte(7);
  EXPECT_EQ(error_json("x", error), R"({"schema":2,"path":"x","decided":false,"error":"bad-bytes",)"
                                    R"("message":"bytes are bad","byte_offset":7})"
                                    "\n");
}

std::string written(double const number) {
  JsonWriter writer;
  write_value(writer, number);
  return std::move(writer).take();
}

TEST(json_values, round_numbers_to_what_they_mean) {
  EXPECT_EQ(written(0.9602999999999999), "0.9603");
  EXPECT_EQ(written(1.0 / 3), "0.3333");
  EXPECT_EQ(written(-2.5), "-2.5");
  EXPECT_EQ(written(1e9), "1000000000.0");
  EXPECT_EQ(written(-0.0), "-0.0");
  EXPECT_EQ(written(1.8446744073709552e19), "null");
  EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(written(std::nan("")), "null");
}

/// A report whose last rule saw candidates from 0 on with these measures.
textio::detection::DetectionReport ranked(std::vector<double> const& measures,
                                          std::size_t const winner) {
  textio::detection::DetectionReport report;
  report.winner = winner;
  report.steps.resize(1);
  for (std::size_t i = 0; i < measures.size(); ++i) {
    report.steps[0].seen.push_back(i);
  }
  report.steps[0].measures = measures;
  report.steps[0].survivors = {winner};
  return report;
}

TEST(engine_margin, is_that_of_the_nearest) {
  support::for_each_row("text_import/report/engine_margins.tsv", [](support::Row const& row) {
    std::vector<double> measures;
    for (json const& measure : row.value(0)) {
      measures.push_back(measure.is_null() ? std::numeric_limits<double>::infinity()
                                           : measure.get<double>());
    }
    EngineMargin const found = engine_margin(ranked(measures, row.count(1)));
    EXPECT_EQ(json(found.runners_up), row.value(2));
    EXPECT_EQ(found.margin ? json(*found.margin) : json(), row.value(3));
  });
  textio::detection::DetectionReport undecided = ranked({1, 2}, 0);
  undecided.winner.reset();
  EXPECT_TRUE(engine_margin(undecided).runners_up.empty());
  EXPECT_TRUE(engine_margin(textio::detection::DetectionReport()).runners_up.empty());
}

}  // namespace
}  // namespace textimport
