// SPDX-License-Identifier: MIT
//
// Whole reports on small texts.
#include "text_import/report/report.hpp"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_import/format/utf.hpp"

namespace textimport {
namespace {

Analysis analysis_of(std::u16string_view const text, Request const& request = {}) {
  TextSample sample{.text = text, .goes_on = false, .source = {}};
  sample.source.encoding = "UTF-8";
  sample.source.encoding_origin = Origin::Found;
  return analyse(sample, request);
}

ReportSubject const made{.path = "made.txt"};

/// The part of a text from one piece of it to another, which is left out.
std::string between(std::string const& text, std::string const& from, std::string const& to) {
  std::size_t const begin = text.find(from);
  std::size_t const end = text.find(to, std::min(begin, text.size()));
  EXPECT_NE(end, std::string::npos) << text;
  return begin > end ? text : text.substr(begin, end - begin);
}

TEST(report, shows_the_answer_then_the_rows_then_the_rest) {
  std::u16string const text =
      u"Weekly readings\n"
      u"id;when;value;value\n"
      u"1;2024-01-31;1,5;\n"
      u"2;2024-02-01;2,25;x\n"
      u"3;2024-02-02;0,75;y\n"
      u"\n"
      u"Source: the office\n";
  ReportSubject subject = made;
  subject.encoding_is_guess = true;
  subject.encoding_explanation = "few bytes tell";
  subject.notes = {"3 bytes were replaced"};
  EXPECT_EQ(report(analysis_of(text), subject, {.width = 72, .rows = 2, .colors = {}}),
            R"(made.txt
  layout        delimited
  delimiter     semicolon
  decimal mark  comma
  how sure      99 %, nearly certain
  why           every line of the data has 4 fields at semicolons, 3 of
                4 columns hold numbers or dates; next best: one value,
                <1 %

    id  when        value  value
    --  ----------  -----  -----
     1  2024-01-31    1,5
     2  2024-02-01   2,25  x

  data          lines 3 to 5
  above         2 lines
      1  title     | Weekly readings
      2  names     | id;when;value;value
  below         2 lines
      6  blank     |
      7  footer    | Source: the office
  columns       4
    #  name   type     longest
    1  id     integer        1
    2  when   date          10
    3  value  real           4  decimal comma
    4  value  text           1  1 empty
  text          UTF-8 (a guess)
  sampled       7 lines, 3 records of data
  note          the encoding is a guess: few bytes tell
  note          names that stand more than once: "value" twice
  note          3 bytes were replaced
)");
}

TEST(report, of_a_guess_lists_what_else_the_text_may_be) {
  std::u16string const text = u"a, b; c\nd, e; f\n";
  std::string const shown = report(analysis_of(text), made, {});
  EXPECT_EQ(between(shown, "  layout", "\n    text"),
            R"(  layout        not decided; read as delimited
  delimiter     comma
  how sure      48 %, a guess
  why           too little speaks for the best reading: every line has 2 fields
                at commas, no column holds more than text; next best: 2 fields
                at semicolons, 42 %
  candidates    the best first and 2 more
      1  comma, 2 columns, 48 % likely; for it: split at commas: yes, there no
      2  semicolon, 2 columns, 42 % likely; for it: split at semicolons: yes,
         there no
      3  whole lines, 1 column, 9 % likely; for it: commas with a blank behind
         them: 100 %; no more than two columns: no, there yes
  to settle     say how the lines are split, or give more of the text
)");
}

TEST(report, marks_what_is_given) {
  std::u16string const text = u"ab12\ncd34\n";
  Request request;
  request.widths = {1, 1};
  request.header_lines = 1;
  request.comment_markers.emplace();
  request.quote = 0;
  request.values.missing_words = {u"x"};
  EXPECT_EQ(report(analysis_of(text, request), made, {}), R"(made.txt
  layout        fixed-width (given)
  widths        1, 1 (given)
  quotes        none; quotation marks belong to the values (given)
  comments      none (given)
  missing       "x" (given)
  why           the widths are given

     a b
    |1|1|
    |c|d|

  data          line 2; where they start is given
  above         1 line
      1  names     | ab12
  columns       2
    #  name  type  longest  characters
    1  a     text        1  1
    2  b     text        1  2
  text          UTF-8
  sampled       2 lines, 1 record of data
  note          the widths end 2 characters before the longest line
)");
}

TEST(report, says_how_far_a_sample_reaches) {
  std::u16string text = u"a,b\n";
  for (int i = 0; i < 20; ++i) {
    text += u"1,2\n";
  }
  Request request;
  request.records = 10;
  std::string const shown = report(analysis_of(text, request), made, {});
  EXPECT_NE(shown.find("  data          from line 2 on (the sample ends at line 10, the file goes "
                       "on)\n"),
            std::string::npos)
      << shown;
  EXPECT_NE(shown.find("  sampled       the first 10 lines, 9 records of data\n"),
            std::string::npos)
      << shown;
}

TEST(report, in_one_line) {
  support::for_each_row("text_import/report/lines.tsv", [](support::Row const& row) {
    std::u16string const text = row.text(0);
    std::string line = report_line(analysis_of(text), made);
    std::ranges::replace(line, '\t', '|');
    EXPECT_EQ(line, row.cells[1] + "\n");
  });
}

}  // namespace
}  // namespace textimport
