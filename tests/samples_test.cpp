// SPDX-License-Identifier: MIT
//
// Every text of samples/ and what must be detected in it, and what holds for every decision: the
// same answer again, and none that looks past the end of the sample. Speaks to the library through
// its public headers alone, so that it runs outside the real shared library as well.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/decision.hpp"
#include "tests/support/text.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using textio::Field;
using textio::FieldArray;
using textio::detection::DetectionReport;
namespace fs = std::filesystem;

fs::path const folder = fs::path(TFD_TESTS_FOLDER) / "samples";

std::string read_file(fs::path const& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The names of the files with this ending, without it.
std::vector<std::string> names(std::string const& ending) {
  std::vector<std::string> result;
  for (auto const& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ending) {
      result.push_back(entry.path().stem().string());
    }
  }
  std::sort(result.begin(), result.end());
  return result;
}

/// The decision in words, and the report of it.
std::string detect(std::u16string_view const text, DetectionReport& report) {
  textio::parser::options const options;
  ostrel::io::text::typedetection::TypeAnalyzerOptions const types;
  textio::detection::StrategySelector selector(options, types);
  return support::show_decision(*selector.pick_strategy(Field(text), 250, report), report);
}

/// Every field lies in the sample and before its end mark, and the totals add up.
void expect_sound(FieldArray const& fields, std::u16string_view const text) {
  auto const& ends = fields.record_ends();
  EXPECT_TRUE(std::is_sorted(ends.begin(), ends.end()));
  EXPECT_EQ(ends.empty() ? 0 : ends.back(), fields.fields().size());
  for (Field const& field : fields.fields()) {
    EXPECT_GE(field.data(), text.data());
    EXPECT_LE(field.data() + field.length(), text.data() + std::min(text.find(0xFFFF), text.size()))
        << support::show(field.view());
  }
}

void expect_sound(DetectionReport const& report, std::u16string_view const text) {
  expect_sound(*report.line_reader->field_array(), text);
  for (auto const& sampled : report.sampled) {
    expect_sound(*sampled.strategy->field_array(), text);
  }
  std::vector<std::size_t> left(report.candidates.size());
  std::generate(left.begin(), left.end(), [i = std::size_t{0}]() mutable { return i++; });
  for (auto const& [rule, seen, measures, survivors] : report.steps) {
    EXPECT_EQ(seen, left) << rule;
    EXPECT_EQ(measures.size(), seen.size()) << rule;
    EXPECT_TRUE(std::includes(seen.begin(), seen.end(), survivors.begin(), survivors.end()));
    EXPECT_FALSE(survivors.empty()) << rule;
    left = survivors;
  }
}

class Sample : public testing::TestWithParam<std::string> {};

TEST_P(Sample, IsDetected) {
  std::u16string text = support::to_utf16(read_file(folder / (GetParam() + ".txt")));
  DetectionReport report;
  std::string const decision = detect(text, report);
  EXPECT_EQ(decision, read_file(folder / (GetParam() + ".expect")));
  expect_sound(report, text);
  EXPECT_EQ(detect(text, report), decision);
  text += u"\uFFFF1,2;3\t\"4 5\n/*6*/";
  EXPECT_EQ(detect(text, report), decision);
  expect_sound(report, text);
}

TEST(Samples, EachHasItsExpectation) {
  EXPECT_EQ(names(".txt"), names(".expect"));
  EXPECT_GE(names(".txt").size(), 10U);
}

INSTANTIATE_TEST_SUITE_P(, Sample, testing::ValuesIn(names(".txt")),
                         [](auto const& sample) { return sample.param; });

}  // namespace
