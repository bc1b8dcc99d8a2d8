// SPDX-License-Identifier: MIT
//
// What is given stays as it is, the rules of a region fit the next file of the kind, and broken
// rules are told where they are.
#include "text_import/analysis/analysis.hpp"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_import/analysis/describing/line_features_internal.hpp"
#include "text_import/analysis/describing/role_weights_internal.hpp"
#include "text_import/format/utf.hpp"
#include "text_import/format/words.hpp"

namespace textimport {
namespace {

using support::json;
using support::Row;

std::u16string wide(json const& text) {
  return *from_utf8(text.get<std::string>());
}

std::vector<std::u16string> all_wide(json const& texts) {
  std::vector<std::u16string> list;
  for (json const& text : texts) {
    list.push_back(wide(text));
  }
  return list;
}

char16_t one(json const& text) {
  return text.is_null() ? u'\0' : wide(text).front();
}

/// A request from its members as JSON: {"quote": "'", "rules": "consecutive"}.
Request request_of(json const& said) {
  Request request;
  for (auto const& [member, value] : said.items()) {
    if (member == "layout") {
      request.layout = from_word<Layout>(value.get<std::string>());
    } else if (member == "delimiters") {
      request.delimiters = all_wide(value);
    } else if (member == "excluded") {
      request.excluded_delimiters = all_wide(value);
    } else if (member == "widths") {
      request.widths = value.get<std::vector<std::size_t>>();
    } else if (member == "columns") {
      request.num_columns = value;
    } else if (member == "header_lines") {
      request.header_lines = value;
    } else if (member == "last_line") {
      request.last_line = value;
    } else if (member == "name_lines") {
      request.name_lines = value.get<std::vector<std::size_t>>();
    } else if (member == "quote") {
      request.quote = one(value);
    } else if (member == "escape") {
      request.escape = one(value);
    } else if (member == "comments") {
      request.comment_markers = all_wide(value);
    } else if (member == "line_endings") {
      request.line_endings = all_wide(value);
    } else if (member == "decimal_mark") {
      request.values.decimal_mark = one(value);
    } else if (member == "engine") {
      request.engine_decides = value;
    } else if (member == "strict") {
      request.rules.consecutive_delimiters = textio::enums::ConsecutiveDelimitersRule::Error;
      request.rules.trailing_delimiters = textio::enums::TrailingDelimitersRule::Error;
      request.rules.empty_lines = textio::enums::EmptyLineRule::Error;
    } else {
      ADD_FAILURE() << "no member " << member;
    }
  }
  return request;
}

Analysis analyse_text(std::u16string const& text, Request const& request, bool goes_on = false) {
  TextSample sample;
  sample.text = text;
  sample.goes_on = goes_on;
  return analyse(sample, request);
}

std::string show_layout(LayoutFormat const& layout) {
  std::string shown(word_of(layout.layout));
  for (std::u16string const& delimiter : layout.delimiters) {
    shown += " " + support::show(delimiter);
  }
  return layout.widths.empty() ? shown : shown + " " + support::show(layout.widths);
}

std::string show_lines(Region const& region) {
  return std::to_string(region.first_line) + "-" +
         (region.end_line ? std::to_string(*region.end_line) : "");
}

TEST(analysis, keeps_what_is_given) {
  support::for_each_row("text_import/analysis/requests.tsv", [](Row const& row) {
    std::u16string const text = row.text(0);
    Analysis const found = analyse_text(text, request_of(row.value(1)));
    EXPECT_EQ(row.cells[2], show_layout(found.format.layout));
    EXPECT_EQ(row.cells[3], std::to_string(found.format.columns.size()) + " columns, lines " +
                                show_lines(found.format.region));
    EXPECT_EQ(row.cells[4],
              (found.decided ? "" : "not decided: ") + std::string(word_of(found.reason)));
  });
}

std::string show_rules(Region const& region) {
  return std::string(word_of(region.start.rule)) + " " + std::to_string(region.start.lines) + " " +
         support::show(region.start.line) + ", " + std::string(word_of(region.end.rule)) + " " +
         std::to_string(region.end.lines) + " " + support::show(region.end.line);
}

TEST(analysis, finds_rules_that_fit_the_next_file) {
  support::for_each_row("text_import/analysis/regions.tsv", [](Row const& row) {
    std::u16string const text = row.text(0);
    Analysis const found = analyse_text(text, {});
    EXPECT_EQ(row.cells[1], show_lines(found.format.region));
    EXPECT_EQ(row.cells[2], show_rules(found.format.region));
    Request given;
    given.format = found.format;
    std::u16string const next = row.text(3);
    Analysis const again = analyse_text(next, given);
    EXPECT_EQ(row.cells[4], show_lines(again.format.region));
    std::string names;
    for (Column const& column : again.format.columns) {
      names += "|" + support::show(column.name);
    }
    EXPECT_EQ(row.cells[5], names);
    EXPECT_EQ(row.cells[6],
              (again.decided ? "" : "not decided: ") + std::string(word_of(again.reason)));
    EXPECT_EQ(Origin::Given, again.format.layout.origin);
    EXPECT_EQ(again.format.columns.size() == found.format.columns.size(),
              again.reason != Reason::ColumnsDiffer);
  });
}

TEST(analysis, of_the_same_file_with_its_own_format_is_the_same) {
  support::for_each_row("text_import/analysis/regions.tsv", [](Row const& row) {
    std::u16string const text = row.text(0);
    Analysis const found = analyse_text(text, {});
    Request given;
    given.format = found.format;
    Analysis const again = analyse_text(text, given);
    EXPECT_EQ(show_lines(found.format.region), show_lines(again.format.region));
    ASSERT_EQ(found.format.columns.size(), again.format.columns.size());
    for (std::size_t i = 0; i < found.format.columns.size(); ++i) {
      Column column = again.format.columns[i];
      EXPECT_EQ(Origin::Given, column.type_origin);
      column.type_origin = Origin::Found;
      EXPECT_EQ(found.format.columns[i], column);
      EXPECT_EQ(found.evidence.columns[i].fitting, again.evidence.columns[i].fitting);
    }
  });
}

/// One letter a line, "d" for those of which nothing is noted, and "S" for sums.
std::string show_roles(Analysis const& found) {
  std::string roles(found.lines.count(), 'd');
  for (NotedLine const& noted : found.evidence.lines) {
    roles[noted.line] = noted.role == LineRole::Total ? 'S' : word_of(noted.role).front();
  }
  return roles;
}

TEST(analysis, tells_the_roles_of_lines) {
  support::for_each_row("text_import/analysis/line_roles.tsv", [](Row const& row) {
    std::u16string const text = row.text(0);
    Analysis const found = analyse_text(text, request_of(row.value(1)));
    EXPECT_EQ(row.cells[2], show_roles(found));
    std::string names;
    for (Column const& column : found.format.columns) {
      names += has_names(found.format) ? "|" + support::show(column.name) : "";
    }
    EXPECT_EQ(row.cells[3], names);
    std::string open;
    for (TablePart const part : found.evidence.open_parts) {
      open += std::string(word_of(part)) + " ";
    }
    EXPECT_EQ(row.cells[4], open);
    EXPECT_EQ(found.table_decided, found.decided && open.empty());
  });
}

TEST(analysis, weighs_each_feature_of_a_line) {
  EXPECT_EQ(analysis::num_line_features, analysis::role_weights.size());
}

TEST(analysis, tells_where_a_rule_is_broken) {
  support::for_each_row("text_import/analysis/violations.tsv", [](Row const& row) {
    std::u16string const text = row.text(0);
    Analysis const found = analyse_text(text, request_of(row.value(1)));
    std::string shown = "none";
    if (found.violation) {
      auto const& [rule, position] = *found.violation;
      shown = std::string(word_of(rule)) + " " + std::to_string(position.offset) + " line " +
              std::to_string(position.line) + " column " + std::to_string(position.column);
    }
    EXPECT_EQ(row.cells[2], shown);
  });
}

TEST(analysis, makes_names_unique) {
  std::u16string const text = u"a,b,a,,a_2,a\n1,2,3,4,5,6\n7,8,9,1,2,3\n4,5,6,7,8,9\n";
  Request request;
  request.header_lines = 1;
  Analysis const found = analyse_text(text, request);
  std::string names;
  for (Column const& column : found.format.columns) {
    names += support::show(column.name) + "=" + support::show(column.unique_name) + " ";
  }
  EXPECT_EQ("a=a b=b a=a_3 =c4 a_2=a_2 a=a_4 ", names);
  Analysis const named = analyse_text(u"a,b,a,a_2,a\n1,2,3,4,5\n7,8,9,1,2\n4,5,6,7,8\n", {});
  names.clear();
  for (Column const& column : named.format.columns) {
    names += support::show(column.name) + "=" + support::show(column.unique_name) + " ";
  }
  EXPECT_EQ("a=a b=b a=a_3 a_2=a_2 a=a_4 ", names);
  EXPECT_EQ(std::vector<std::u16string>{u"a"}, named.evidence.repeated_names);
}

TEST(analysis, keeps_the_engines_decision) {
  std::u16string const text = u"x y;1,5\nz w;2,5\nv u;3,5\n";
  Analysis const found = analyse_text(text, {});
  ASSERT_TRUE(found.engine);
  EXPECT_EQ(textio::detection::Outcome::Candidate, found.engine->outcome);
  Request given;
  given.delimiters = {u";"};
  EXPECT_FALSE(analyse_text(text, given).engine) << "nothing was left to decide";
}

TEST(line_index, splits_at_the_first_ending_that_matches) {
  struct Case {
    std::u16string text;
    std::vector<std::u16string> endings;
    std::string lines;
  };

  std::vector<std::u16string> const usual{u"\r\n", u"\n", u"\r"};
  for (Case const& c :
       {Case{u"", usual, ""}, Case{u"\n", usual, "0:"}, Case{u"a", usual, "0:a"},
        Case{u"a\r\nb\rc\n\nd", usual, "0:a 3:b 5:c 7: 8:d"},
        Case{u"a;b;;c", {u";;", u";"}, "0:a 2:b 5:c"}, Case{u"a\nb", {}, "0:a\\nb"}}) {
    LineIndex const lines(c.text, c.endings);
    std::string shown;
    for (std::size_t i = 0; i < lines.count(); ++i) {
      shown += (i == 0 ? "" : " ") + std::to_string(lines.start(i)) + ":" + support::show(lines[i]);
      EXPECT_EQ(i, lines.line_at(lines.start(i)));
      EXPECT_EQ((Position{lines.start(i) + lines[i].size(), i, lines[i].size()}),
                lines.position_of(lines.start(i) + lines[i].size()));
    }
    EXPECT_EQ(c.lines, shown);
    EXPECT_EQ(c.text.size(), lines.start(lines.count()));
  }
}

}  // namespace
}  // namespace textimport
