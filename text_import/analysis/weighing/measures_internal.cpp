// SPDX-License-Identifier: MIT
//
// A measure of records, values or places is 0 where each line is a value, which has none of them.
#include "text_import/analysis/weighing/measures_internal.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "text_import/analysis/readings/usual_delimiters_internal.hpp"

namespace textimport::analysis {

namespace {

using A = Alternative;
using ReadingMember = double Reading::*;
using TraitMember = double TextTraits::*;

/// How large a number is in steps of doubling, 1 for `most` of them.
double magnitude(std::size_t const number, std::size_t const most) {
  return static_cast<double>(std::min<std::size_t>(std::bit_width(number), most)) /
         static_cast<double>(most);
}

double yes_or_no(bool const is_so) {
  return is_so ? 1 : 0;
}

template <ReadingMember member>
double of_reading(A const& a) {
  return a.reading == nullptr ? 0 : a.reading->*member;
}

/// What a member lacks to 1.
template <ReadingMember member>
double lack_of(A const& a) {
  return a.reading == nullptr ? 0 : 1 - a.reading->*member;
}

/// The same for one kind of reading; 0 for the others, of which it is not measured.
template <ReadingMember member, ReadingKind kind>
double lack_in(A const& a) {
  return a.kind == kind ? 1 - a.reading->*member : 0;
}

template <TraitMember member>
double of_text(A const& a) {
  return a.text->*member;
}

/// Whether something holds of the reading.
template <bool (*holds)(Reading const&)>
double is_so(A const& a) {
  return yes_or_no(a.reading != nullptr && holds(*a.reading));
}

template <char16_t delimiter>
bool is_split_at(Reading const& r) {
  return r.layout == Layout::Delimited && r.delimiter.size() == 1 &&
         r.delimiter.front() == delimiter;
}

bool stands_inside_values(Reading const& r) {
  constexpr std::u16string_view inner = u"/\\:.-_=@";
  return r.layout == Layout::Delimited && r.delimiter.size() == 1 &&
         inner.find(r.delimiter.front()) != std::u16string_view::npos;
}

bool reaches_end(Reading const& r) {
  return r.block.last + 2 >= r.records.size();
}

bool is_flawless_end(Reading const& r) {
  return reaches_end(r) && r.regularity >= 0.95 && r.block.regular >= 2 && r.typed_columns > 0;
}

double fit(A const& a) {
  return a.reading == nullptr ? 0 : a.reading->coverage * a.reading->soundness;
}

double best_rival(A const& a) {
  Rivals const& r = a.rivals;
  return std::max({r.usual, r.blank, r.rare, r.fixed});
}

constexpr auto share = MeasureScale::Share;
constexpr auto yes_no = MeasureScale::YesOrNo;
constexpr auto number = MeasureScale::Number;

constexpr std::array measures{
    Measure{"kind", "how often tables of this kind are met", number, [](A const&) { return 1.0; }},
    Measure{"tab", "split at tabs", yes_no, is_so<is_split_at<u'\t'>>},
    Measure{"comma", "split at commas", yes_no, is_so<is_split_at<u','>>},
    Measure{"semicolon", "split at semicolons", yes_no, is_so<is_split_at<u';'>>},
    Measure{"bar", "split at bars", yes_no, is_so<is_split_at<u'|'>>},
    Measure{"long_delimiter", "the delimiter is longer than one character", yes_no,
            is_so<([](Reading const& r) { return r.delimiter.size() > 1; })>},
    Measure{"inner_sign", "the delimiter is a sign of paths, times, names or addresses", yes_no,
            is_so<stands_inside_values>},
    Measure{"single_blank", "split at each blank", yes_no, is_so<is_split_at<u' '>>},
    Measure{"assumed", "something is assumed of quotes or comments", yes_no,
            [](A const& a) { return yes_or_no(a.is_guess); }},
    Measure{"outer_bars", "each line begins and ends with the delimiter", yes_no,
            is_so<([](Reading const& r) { return r.syntax.has_outer_bars; })>},
    Measure{"escape", "something is escaped", yes_no,
            is_so<([](Reading const& r) { return r.syntax.escape != 0; })>},
    Measure{"end_comments", "comments stand at the ends of lines", yes_no,
            is_so<([](Reading const& r) { return r.syntax.has_end_comments; })>},
    Measure{"rest_of_line", "the last field is the rest of the line", yes_no,
            is_so<([](Reading const& r) { return r.syntax.rest_of_line > 0; })>},
    Measure{"engine", "the engine decides for it by itself", yes_no,
            [](A const& a) { return yes_or_no(a.engine_agrees); }},

    Measure{"uncovered", "records without these columns", share, lack_of<&Reading::coverage>},
    Measure{"uncovered_root", "records without these columns, the root of their share", number,
            [](A const& a) { return std::sqrt(std::max(0.0, lack_of<&Reading::coverage>(a))); }},
    Measure{"irregular", "records without these columns between the first and the last with them",
            share, lack_of<&Reading::regularity>},
    Measure{"split", "records with more than one field", share, of_reading<&Reading::split_share>},
    Measure{"split_much", "records with more than three fields", share,
            of_reading<&Reading::much_split_share>},
    Measure{"records", "how many records there are, in steps of doubling", number,
            [](A const& a) {
              return a.reading == nullptr ? 0 : magnitude(a.reading->block.regular, 7);
            }},
    Measure{"one_record", "a single record", yes_no,
            is_so<([](Reading const& r) { return r.block.regular == 1; })>},
    Measure{"two_records", "two records", yes_no,
            is_so<([](Reading const& r) { return r.block.regular == 2; })>},
    Measure{"reaches_end", "the table stands at the end of the text", yes_no, is_so<reaches_end>},
    Measure{"flawless_end",
            "a flawless table with columns that are more than text stands at the "
            "end of the text",
            yes_no, is_so<is_flawless_end>},
    Measure{"long_records", "a record spans more than three lines", yes_no,
            is_so<([](Reading const& r) { return r.longest_record > 3; })>},

    Measure{"unsound", "values that do not hold together", share, lack_of<&Reading::soundness>},
    Measure{"broken", "values that look cut at the wrong place", share,
            of_reading<&Reading::broken_share>},
    Measure{"mixed", "values of another kind than most of their column", share,
            of_reading<&Reading::mixed_share>},
    Measure{"empty", "fields that are empty", share, of_reading<&Reading::empty_share>},
    Measure{"open_ends", "records whose last field is empty", share,
            of_reading<&Reading::open_end_share>},
    Measure{"typed", "values that are more than text", share, of_reading<&Reading::typed_share>},
    Measure{"typed_column", "a column is more than text", yes_no,
            is_so<([](Reading const& r) { return r.typed_columns > 0; })>},
    Measure{"names", "the first record is text above columns that are more", yes_no,
            is_so<([](Reading const& r) { return r.has_names; })>},
    Measure{"two_columns", "no more than two columns", yes_no,
            is_so<([](Reading const& r) { return r.filled_columns <= 2; })>},
    Measure{"columns", "how many columns there are, in steps of doubling", number,
            [](A const& a) {
              return a.reading == nullptr ? 0 : magnitude(a.reading->filled_columns, 6);
            }},
    Measure{"inner_blanks", "values that hold a blank", share,
            of_reading<&Reading::inner_blank_share>},
    Measure{"seconds", "records that are cut at the fraction of a second", share,
            of_reading<&Reading::seconds_share>},
    Measure{"keys", "records that are a name and its value", share,
            of_reading<&Reading::key_share>},
    Measure{"fit", "coverage times soundness", share, fit},

    Measure{"unaligned", "fields that stand below no edge of the one above", share,
            lack_in<&Reading::aligned_share, ReadingKind::Blank>},
    Measure{"narrow_gaps", "fields with a single blank in front", share,
            lack_in<&Reading::wide_gap_share, ReadingKind::Blank>},
    Measure{"disagreement", "how little the lines agree on what stands at a position", share,
            lack_in<&Reading::agreement, ReadingKind::Fixed>},
    Measure{"head_disagreement", "the same in front of the last column", share,
            lack_in<&Reading::head_agreement, ReadingKind::Fixed>},
    Measure{"tail", "how much of the lines the last column takes", share,
            lack_in<&Reading::head_share, ReadingKind::Fixed>},
    Measure{"ruled", "a ruler parts the columns", yes_no,
            is_so<([](Reading const& r) { return r.by_ruler || r.syntax.has_rulers; })>},
    Measure{"unequal", "lines of another length than most", share,
            lack_in<&Reading::equal_lengths, ReadingKind::Fixed>},
    Measure{"torn", "columns that end inside a word", share, of_reading<&Reading::torn_share>},
    Measure{"as_by_blanks", "blanks part the same values", yes_no,
            is_so<([](Reading const& r) { return r.is_read_by_blanks; })>},
    Measure{"columns_by_blanks", "blanks split the lines into as many columns", yes_no,
            [](A const& a) {
              return yes_or_no(a.kind == ReadingKind::Fixed &&
                               a.rivals.blank_columns == a.reading->block.columns);
            }},

    Measure{"rival_tab", "how well tabs explain the text", share,
            [](A const& a) { return a.rivals.tab; }},
    Measure{"rival_usual", "how well another usual delimiter explains the text", share,
            [](A const& a) { return a.rivals.usual; }},
    Measure{"rival_blank", "how well blanks explain the text", share,
            [](A const& a) { return a.rivals.blank; }},
    Measure{"rival_rare", "how well a rare delimiter explains the text", share,
            [](A const& a) { return a.rivals.rare; }},
    Measure{"rival_fixed", "how well fixed widths explain the text", share,
            [](A const& a) { return a.rivals.fixed; }},
    Measure{"rival_best", "how well the best other reading explains the text", share, best_rival},
    Measure{"behind", "by how much another reading explains more of the text", number,
            [](A const& a) { return std::max(0.0, best_rival(a) - fit(a)); }},

    Measure{"sentences", "lines that end as sentences do", share,
            of_text<&TextTraits::sentence_ends>},
    Measure{"function_words", R"(words such as "the" and "of")", share,
            of_text<&TextTraits::function_words>},
    Measure{"numbers", "words that are numbers", share, of_text<&TextTraits::number_words>},
    Measure{"time_stamps", "lines that begin with a date or a time", share,
            of_text<&TextTraits::time_stamps>},
    Measure{"logs", "lines with a time in front of prose", share, of_text<&TextTraits::log_lines>},
    Measure{"levels", "lines with a word such as INFO or ERROR", share,
            of_text<&TextTraits::log_levels>},
    Measure{"pairs", R"(words such as "name=value")", share, of_text<&TextTraits::pair_words>},
    Measure{"single_values", "lines that are one number, date or time as a whole", share,
            of_text<&TextTraits::single_values>},
    Measure{"leaders", "lines with a row of points", share, of_text<&TextTraits::leaders>},
    Measure{"colon_keys", R"(lines that begin with "name: ")", share,
            of_text<&TextTraits::colon_keys>},
    Measure{"equals_keys", R"(lines that begin with "name =")", share,
            of_text<&TextTraits::equals_keys>},
    Measure{"tags", "lines with a tag of markup", share, of_text<&TextTraits::tags>},
    Measure{"code", "lines that end or begin as those of programs do", share,
            of_text<&TextTraits::code_ends>},
    Measure{"indented", "lines that begin with a blank", share, of_text<&TextTraits::indented>},
    Measure{"blank_lines", "lines that are blank", share, of_text<&TextTraits::blank_lines>},
    Measure{"letters", "characters that are letters", share, of_text<&TextTraits::letters>},
    Measure{"digits", "characters that are digits", share, of_text<&TextTraits::digits>},
    Measure{"wide_gaps", "lines with two blanks between words", share,
            of_text<&TextTraits::wide_gaps>},
    Measure{"comma_blanks", "commas with a blank behind them", share,
            of_text<&TextTraits::comma_blanks>},
    Measure{"prose", "lines of many words in small letters", share,
            of_text<&TextTraits::prose_lines>},
    Measure{"patterns", "different patterns of signs, by the line", share,
            of_text<&TextTraits::patterns>},
    Measure{"length_spread", "how much the lengths of the lines differ", number,
            of_text<&TextTraits::length_spread>},
    Measure{"words_spread", "how much the numbers of words in the lines differ", number,
            of_text<&TextTraits::words_spread>},
    Measure{
        "words", "words in a line, in steps of doubling", number,
        [](A const& a) { return magnitude(static_cast<std::size_t>(a.text->words_a_line), 6); }},
    Measure{"addresses", "lines with a path or an address", share, of_text<&TextTraits::addresses>},
    Measure{"lines", "how many lines there are, in steps of doubling", number,
            [](A const& a) { return magnitude(a.text->filled_lines, 8); }},
    Measure{"few_lines", "no more than five lines", yes_no,
            [](A const& a) { return yes_or_no(a.text->filled_lines <= 5); }},
};

}  // namespace

ReadingKind kind_of(Reading const& r) noexcept {
  if (r.layout == Layout::FixedWidth) {
    return ReadingKind::Fixed;
  }
  if (r.layout == Layout::SpaceAligned || r.delimiter == u" ") {
    return ReadingKind::Blank;
  }
  constexpr std::u16string_view made_for_it = u"\x01\x1C\x1D\x1E\x1F";
  std::u16string_view const first = std::u16string_view(r.delimiter).substr(0, 1);
  bool const is_usual =
      is_common(first) || (!first.empty() && made_for_it.find(first) != std::u16string_view::npos);
  return is_usual ? ReadingKind::Usual : ReadingKind::Rare;
}

std::span<Measure const> all_measures() noexcept {
  return measures;
}

}  // namespace textimport::analysis
