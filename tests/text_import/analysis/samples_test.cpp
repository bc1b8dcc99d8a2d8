// SPDX-License-Identifier: MIT
//
// Every text of samples/ and all that the analysis says of it, in words: NAME.expect beside each. A
// changed answer is a changed file. TFD_WRITE_EXPECTED=1 in the environment writes them anew.
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
#include "text_import/analysis/analysis.hpp"
#include "text_import/format/format_json.hpp"
#include "text_import/format/words.hpp"
#include "text_import/source/text_source.hpp"
#include "text_import/splitting/record_splitter_internal.hpp"
#include "text_import/table/rows.hpp"

namespace {

namespace fs = std::filesystem;
using textimport::Analysis;
using textimport::Candidate;
using textimport::Column;
using textimport::ColumnEvidence;
using textimport::DateOrder;
using textimport::Evidence;
using textimport::Hypothesis;
using textimport::TextSource;
using textimport::splitting::line_syntax_of;

fs::path const folder = TFD_TESTS_FOLDER "/text_import/analysis/samples";

std::string show_mark(char16_t const c) {
  return c == 0 ? "none" : support::show({&c, 1});
}

void describe_column(std::ostream& out, Column const& column, ColumnEvidence const& counts) {
  out << "column '" << support::show(column.name) << "' " << word_of(column.type) << " "
      << counts.fitting << "/" << counts.values;
  if (counts.empty > 0) {
    out << ", empty " << counts.empty;
  }
  for (auto const& word : column.missing_words) {
    out << ", missing " << support::show(word);
  }
  auto const& numbers = column.numbers;
  if (numbers.decimal_mark != 0 || numbers.thousands_mark != 0) {
    out << ", marks " << show_mark(numbers.decimal_mark) << " "
        << show_mark(numbers.thousands_mark);
  }
  if (column.dates.order != DateOrder::None) {
    out << ", " << word_of(column.dates.order);
  }
  out << (column.leading_zeros ? ", leading zeros" : "") << (column.quoted ? ", quoted" : "")
      << ", longest " << counts.longest_value;
  for (auto const& extent : {column.characters, column.bytes}) {
    if (extent) {
      out << ", " << extent->begin << "-" << extent->end;
    }
  }
  out << "\n";
}

std::string show_syntax(textimport::LineSyntax const& syntax) {
  std::string words;
  words += syntax.has_outer_bars ? ", outer bars" : "";
  words += syntax.has_rulers ? ", rulers" : "";
  words += syntax.escape != 0 ? ", escapes " + show_mark(syntax.escape) : "";
  words += syntax.has_end_comments ? ", comments at line ends" : "";
  words += syntax.quotes_behind_blanks ? ", quotes behind blanks" : "";
  return syntax.rest_of_line > 0 ? words + ", rest of line " + std::to_string(syntax.rest_of_line)
                                 : words;
}

std::string describe(Hypothesis const& assumed) {
  std::string words = assumed.quotes_are_ordinary ? "quotes are ordinary characters"
                      : assumed.quote != 0        ? "quoted by " + show_mark(assumed.quote)
                                                  : "as given";
  if (!assumed.comment_markers.empty()) {
    words += ", comments start with " + support::show(assumed.comment_markers.front());
  }
  return words + show_syntax(assumed.syntax);
}

void describe_region(std::ostream& out, textimport::Region const& region) {
  out << "data " << region.first_line << "-" << region.end_line.value_or(0) << ", "
      << word_of(region.start.rule) << " " << region.start.lines << " '"
      << support::show(region.start.line) << "', " << word_of(region.end.rule) << " "
      << region.end.lines << " '" << support::show(region.end.line) << "'\n";
}

std::string describe(Analysis const& found) {
  std::ostringstream out;
  auto const& format = found.format;
  Evidence const& evidence = found.evidence;
  out << (found.decided ? "" : "not decided: ") << word_of(format.layout.layout);
  for (auto const& delimiter : format.layout.delimiters) {
    out << " '" << support::show(delimiter) << "'";
  }
  out << ", " << format.columns.size() << " columns, " << word_of(found.reason) << "\nquote "
      << show_mark(format.quoting.quote) << ", decimal mark "
      << show_mark(format.marks.decimal_mark) << "\n";
  describe_region(out, format.region);
  for (auto const& noted : evidence.lines) {
    out << "line " << noted.line << " " << word_of(noted.role) << "\n";
  }
  for (std::size_t i = 0; i < format.columns.size(); ++i) {
    describe_column(out, format.columns[i], evidence.columns[i]);
  }
  for (std::size_t i = 0; i < evidence.candidates.size(); ++i) {
    Candidate const& c = evidence.candidates[i];
    out << "reading " << word_of(c.layout) << " '" << support::show(c.delimiter) << "' "
        << c.num_columns << " (" << describe(evidence.hypotheses[c.hypothesis]) << ")"
        << (evidence.winner == i ? ": won" : "") << "\n";
  }
  return out.str();
}

/// What was found, saved and given, reads the same text in the same manner.
void expect_read_again(TextSource const& text, textimport::Format const& found) {
  textimport::Request request;
  request.format = textimport::format_from_json(textimport::to_json(found)).format;
  auto const read = textimport::analyse(text.text_sample(), request).format;
  EXPECT_EQ(line_syntax_of(found), line_syntax_of(read));
  EXPECT_EQ(found.columns.size(), read.columns.size());
  EXPECT_EQ(found.region.first_line, read.region.first_line);
  auto const data = text.text_sample().text;
  EXPECT_EQ(read_rows(found, data, 1000), read_rows(read, data, 1000));
}

std::string analyse_file(fs::path const& path) {
  auto const text = TextSource::open(path.string());
  auto const found = textimport::analyse(text.text_sample(), {});
  EXPECT_TRUE(found.certainty.layout >= 0 && found.certainty.layout <= 1);
  EXPECT_EQ(describe(textimport::analyse(text.text_sample(), {})), describe(found))
      << "asked twice";
  expect_read_again(text, found.format);
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

class Samples : public testing::TestWithParam<std::string> {};

TEST_P(Samples, All) {
  fs::path const expected = folder / (fs::path(GetParam()).stem().string() + ".expect");
  std::string const found = analyse_file(folder / GetParam());
  if (std::getenv("TFD_WRITE_EXPECTED") != nullptr) {
    std::ofstream(expected, std::ios::binary) << found;
    FAIL() << "written anew: read it before it is believed";
  }
  EXPECT_EQ(read_file(expected), found);
}

INSTANTIATE_TEST_SUITE_P(Analysis, Samples, testing::ValuesIn(samples()),
                         [](auto const& sample) { return fs::path(sample.param).stem().string(); });

}  // namespace
