// SPDX-License-Identifier: MIT
//
// What single values look like to the analysis, by themselves and by what the caller says of them.
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/table.hpp"
#include "tests/support/text.hpp"
#include "text_import/analysis/values/currency_signs_internal.hpp"
#include "text_import/analysis/values/value_grammar_internal.hpp"

namespace textimport::analysis {
namespace {

using support::json;

/// In the order of ValueShape.
constexpr std::array shape_names{"empty",   "missing", "integer",  "real",     "complex",
                                 "boolean", "date",    "datetime", "duration", "hexadecimal",
                                 "binary",  "word",    "phrase",   "broken"};

std::string show_mark(std::string const& name, char16_t const mark) {
  std::string const character = support::show(std::u16string(mark == 0 ? 0 : 1, mark));
  return mark == 0 ? "" : " " + name + '=' + (mark == u' ' ? "blank" : character);
}

std::string show(NumberDress const& dress) {
  std::u16string const sign(currency_sign(dress.currency));
  return (sign.empty() ? "" : " currency=" + support::show(sign)) +
         (dress.percent ? " percent" : "") + (dress.per_mille ? " mille" : "") +
         (dress.parentheses ? " parentheses" : "") + (dress.minus_behind ? " behind" : "") +
         (dress.flag > 0 ? " flag" : "");
}

std::string show(ValueLook const& look) {
  return shape_names.at(static_cast<std::size_t>(look.shape)) +
         show_mark("decimal", look.marks.decimal) + show_mark("thousands", look.marks.thousands) +
         (look.marks.either ? " either" : "") + show(look.dress) +
         (look.leading_zeros ? " zeros" : "") + (look.quoted ? " quoted" : "");
}

std::u16string text_of(json const& with, char const* const name) {
  return support::to_utf16(with.value(name, ""));
}

/// A mark: one character, or "none".
std::optional<char16_t> mark_of(json const& with, char const* const name) {
  std::u16string const text = text_of(with, name);
  return text.empty() ? std::nullopt : std::optional(text == u"none" ? u'\0' : text.front());
}

ValueRequest request_of(json const& with) {
  ValueRequest request;
  request.decimal_mark = mark_of(with, "decimal_mark");
  request.thousands_mark = mark_of(with, "thousands_mark");
  if (with.contains("missing_words")) {
    request.missing_words.emplace();
    for (json const& word : with.at("missing_words")) {
      request.missing_words->push_back(support::to_utf16(word.get<std::string>()));
    }
  }
  request.date_pattern = text_of(with, "date_pattern");
  request.exponent_characters = text_of(with, "exponent_characters");
  if (with.contains("max_decimals")) {
    request.max_decimals = with.at("max_decimals").get<std::uint32_t>();
  }
  request.leading_character = mark_of(with, "leading_character").value_or(u'\0');
  request.embedded_numbers = with.value("embedded_numbers", false);
  request.keeps_blanks = with.value("keeps_blanks", false);
  return request;
}

TEST(value_grammar, looks_at_values_as_people_write_them) {
  ValueGrammar const grammar(u'"', {});
  support::for_each_row("text_import/analysis/values/values.tsv", [&](support::Row const& row) {
    std::u16string const text = row.text(0);
    EXPECT_EQ(show(grammar.look_at(text)), row.cells.at(2));
    EXPECT_EQ(show(grammar.look_at(u" \t" + text + u' ')), row.cells.at(2)) << "blanks around it";
    if (text.find(u'"') == text.npos) {
      std::string const inside = row.cells.at(2) == "broken" ? "phrase" : row.cells.at(2);
      EXPECT_EQ(show(grammar.look_at(u'"' + text + u'"')), inside + " quoted");
    }
  });
}

TEST(value_grammar, goes_by_what_the_caller_says) {
  support::for_each_row("text_import/analysis/values/value_requests.tsv",
                        [](support::Row const& row) {
                          ValueGrammar const grammar(u'"', request_of(row.with));
                          for (std::size_t cell = 1; cell < row.cells.size(); ++cell) {
                            std::string look = show(grammar.look_at(row.text(cell)));
                            EXPECT_EQ(look, row.cells[0]) << row.cells[cell];
                          }
                        });
}

TEST(value_grammar, gives_the_value_that_it_looks_at) {
  ValueRequest request;
  EXPECT_EQ(ValueGrammar(u'"', request).value_of(u" \" a \" "), u"a");
  EXPECT_EQ(ValueGrammar(0, request).value_of(u" \" a \" "), u"\" a \"");
  EXPECT_EQ(ValueGrammar(u'"', request).value_of(u"\""), u"\"");
  request.leading_character = u'$';
  EXPECT_EQ(ValueGrammar(u'"', request).value_of(u"\"$ 5\""), u"5");
  request.keeps_blanks = true;
  EXPECT_EQ(ValueGrammar(u'"', request).value_of(u"$ 5 "), u" 5 ");
  EXPECT_EQ(ValueGrammar(0, {}).look_at(u"").shape, ValueShape::Empty);
  EXPECT_EQ(ValueGrammar(0, {}).look_at(u" \t").shape, ValueShape::Empty);
  EXPECT_EQ(ValueGrammar(0, {}).look_at(u"\"a").shape, ValueShape::Word) << "no quotes";
}

TEST(value_grammar, takes_remarks_behind_numbers_where_the_type_alone_is_asked_for) {
  ValueGrammar const grammar(u'"', {});
  EXPECT_EQ(show(grammar.look_at_type(u"12.3 p")), "real decimal=. flag");
  EXPECT_EQ(show(grammar.look_at_type(u"\"1 234 be\"")), "integer thousands=blank flag quoted");
  EXPECT_EQ(show(grammar.look_at_type(u"45*")), "integer flag");
  EXPECT_EQ(show(grammar.look_at_type(u"-4,5 **")), "real decimal=, flag");
  EXPECT_EQ(show(grammar.look_at_type(u": c")), "missing");
  for (char16_t const* const text : {u"12.3p", u"12 x", u"12 bepu", u"p", u"x 12 p", u"1-2 p"}) {
    EXPECT_EQ(show(grammar.look_at_type(text)), "word");
  }
  EXPECT_EQ(show(grammar.look_at(u"12.3 p")), "phrase") << "elsewhere it may be a cut";
}

TEST(value_grammar, takes_long_texts_in_one_walk) {
  std::size_t const many = 1'000'000;
  std::u16string const ones(many, u'1');
  ValueGrammar const grammar(u'"', {});
  EXPECT_EQ(grammar.look_at(ones).shape, ValueShape::Integer);
  EXPECT_EQ(grammar.look_at(ones + u'x').shape, ValueShape::Word);
  EXPECT_EQ(grammar.look_at(ones + u".5+" + ones + u'i').shape, ValueShape::ComplexNumber);
  EXPECT_EQ(grammar.look_at(std::u16string(many, u'(')).shape, ValueShape::Broken);
  EXPECT_EQ(grammar.look_at(std::u16string(many, u'+') + u'i').shape, ValueShape::Word);
}

}  // namespace
}  // namespace textimport::analysis
