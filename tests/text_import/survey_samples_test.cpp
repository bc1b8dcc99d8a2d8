// SPDX-License-Identifier: MIT
//
// Every text of surveys/ and all that the survey says of it, in words: NAME.expect beside each.
// A changed answer is a changed file. TFD_WRITE_EXPECTED=1 in the environment writes them anew.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/text.hpp"
#include "text_import/source/text_source.hpp"
#include "text_import/survey/survey.hpp"

namespace {

namespace fs = std::filesystem;
using textimport::ColumnFindings;
using textimport::DateOrder;
using textimport::SurveyCandidate;
using textimport::SurveyFindings;
using textimport::SurveyOptions;
using textimport::survey_text;
using textimport::Layout;
using textimport::TextSource;

fs::path const folder = TFD_TESTS_FOLDER "/text_import/surveys";

std::string show_mark(char16_t const c) {
  return c == 0 ? "none" : support::show({&c, 1});
}

void describe_column(std::ostream& out, ColumnFindings const& c) {
  out << "column '" << support::show(c.name) << "' " << name_of(c.type) << " " << c.fitting << "/"
      << c.values;
  if (c.empty > 0) {
    out << ", empty " << c.empty;
  }
  for (auto const& word : c.missing_words) {
    out << ", missing " << support::show(word);
  }
  if (c.decimal_mark != 0 || c.thousands_mark != 0) {
    out << ", marks " << show_mark(c.decimal_mark) << " " << show_mark(c.thousands_mark);
  }
  if (c.order != DateOrder::None) {
    out << ", " << name_of(c.order);
  }
  out << (c.leading_zeros ? ", leading zeros" : "") << (c.quoted ? ", quoted" : "") << ", longest "
      << c.longest_value;
  for (auto const& extent : {c.characters, c.bytes}) {
    if (extent) {
      out << ", " << extent->begin << "-" << extent->end;
    }
  }
  out << "\n";
}

std::string describe(SurveyFindings const& f) {
  std::ostringstream out;
  out << (f.decided ? "" : "not decided: ") << name_of(f.layout) << " '"
      << support::show(f.delimiter) << "', " << f.num_columns << " columns, " << f.reason << "\n";
  out << "quote " << show_mark(f.quote) << ", decimal mark " << show_mark(f.decimal_mark)
      << ", data " << f.data_starts_at << "-" << f.data_ends_at.value_or(0) << "\n";
  for (auto const& noted : f.lines) {
    out << "line " << noted.line << " " << name_of(noted.role) << "\n";
  }
  std::ranges::for_each(f.columns, [&](auto const& column) { describe_column(out, column); });
  for (SurveyCandidate const& c : f.candidates) {
    out << "reading " << name_of(c.layout) << " '" << support::show(c.delimiter) << "' "
        << c.num_columns << " (" << c.hypothesis << "): " << (c.fell_at.empty() ? "won" : c.fell_at)
        << "\n";
  }
  return out.str();
}

std::string survey_file(fs::path const& path) {
  auto const text = TextSource::open(path.string());
  SurveyOptions options;
  options.encoding = text.findings().encoding.name;
  auto const found = survey_text(text.sample(), options);
  EXPECT_TRUE(found.confidence >= 0 && found.confidence <= 1);
  EXPECT_EQ(describe(survey_text(text.sample(), options)), describe(found)) << "asked twice";
  return describe(found);
}

std::string read_file(fs::path const& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> samples() {
  std::vector<std::string> names;
  for (auto const& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".expect") {
      names.push_back(entry.path().filename().string());
    }
  }
  std::ranges::sort(names);
  return names;
}

class Survey : public testing::TestWithParam<std::string> {};

TEST_P(Survey, Sample) {
  fs::path const expected = folder / (fs::path(GetParam()).stem().string() + ".expect");
  std::string const found = survey_file(folder / GetParam());
  if (std::getenv("TFD_WRITE_EXPECTED") != nullptr) {
    std::ofstream(expected, std::ios::binary) << found;
    FAIL() << "written anew: read it before it is believed";
  }
  EXPECT_EQ(read_file(expected), found);
}

INSTANTIATE_TEST_SUITE_P(Texts, Survey, testing::ValuesIn(samples()),
                         [](auto const& sample) { return fs::path(sample.param).stem().string(); });

/// A text, what the caller gives, and the layout, delimiter and number of columns that follow.
TEST(SurveyGiven, PartsStayAsTheyAre) {
  std::u16string const text = u"x y;1,5\nz w;2,5\nv u;3,5\n";
  auto const answer = [&](auto const give) {
    SurveyOptions options;
    give(options);
    SurveyFindings const f = survey_text(textio::Field(text), options);
    return std::string(name_of(f.layout)) + " " + support::show(f.delimiter) + " " +
           std::to_string(f.num_columns) + " from " + std::to_string(f.data_starts_at);
  };
  EXPECT_EQ("delimited ; 2 from 0", answer([](auto&) {}));
  EXPECT_EQ("delimited , 2 from 0", answer([](auto& o) {
              o.given.delimiter = true;
              o.parsing.delimiters = {u","};
            }));
  EXPECT_EQ("fixed-width  2 from 1", answer([](auto& o) {
              o.given.widths = true;
              o.parsing.column_widths = {3, 4};
            }));
  EXPECT_EQ("lines  1 from 0", answer([](auto& o) {
              o.given.layout = true;
              o.layout = Layout::Lines;
            }));
  EXPECT_EQ("space-aligned  2 from 1", answer([](auto& o) {
              o.given.layout = true;
              o.layout = Layout::SpaceAligned;
            }));
  EXPECT_EQ("delimited ; 2 from 1", answer([](auto& o) {
              o.given.header_lines = true;
              o.parsing.header_lines = 1;
            }));
}

}  // namespace
