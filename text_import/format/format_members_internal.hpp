// SPDX-License-Identifier: MIT
//
// The members of a Format and of its parts, with their names in JSON: the one list that both the
// writer and the reader walk. visit_members(visit, part) calls visit(name, member) for each, in
// the order in which they are written.
#pragma once

#include <concepts>
#include <type_traits>

#include "text_import/format/format.hpp"

namespace textimport {

template <class T, class Part>
concept Of = std::same_as<std::remove_const_t<T>, Part>;

template <class Visitor>
void visit_members(Visitor& visit, Of<LineEndingCounts> auto& counts) {
  visit("lf", counts.lf);
  visit("crlf", counts.crlf);
  visit("cr", counts.cr);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<SourceFormat> auto& source) {
  visit("encoding", source.encoding);
  visit("has_byte_order_mark", source.has_byte_order_mark);
  visit("encoding_origin", source.encoding_origin);
  visit("compression", source.compression);
  visit("member", source.member);
  visit("line_endings", source.line_endings);
  visit("line_endings_origin", source.line_endings_origin);
  visit("line_ending_counts", source.line_ending_counts);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<LayoutFormat> auto& layout) {
  visit("layout", layout.layout);
  visit("origin", layout.origin);
  visit("delimiters", layout.delimiters);
  visit("delimiters_origin", layout.delimiters_origin);
  visit("has_blanks_around_delimiters", layout.has_blanks_around_delimiters);
  visit("widths", layout.widths);
  visit("widths_origin", layout.widths_origin);
  visit("whitespace", layout.whitespace);
  visit("consecutive_delimiters", layout.consecutive_delimiters);
  visit("leading_delimiters", layout.leading_delimiters);
  visit("trailing_delimiters", layout.trailing_delimiters);
  visit("empty_lines", layout.empty_lines);
  visit("partial_fields", layout.partial_fields);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<QuotingFormat> auto& quoting) {
  visit("quote", quoting.quote);
  visit("escape_kind", quoting.escape_kind);
  visit("escape", quoting.escape);
  visit("behind_blanks", quoting.behind_blanks);
  visit("origin", quoting.origin);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<CommentFormat> auto& comments) {
  visit("markers", comments.markers);
  visit("between_data", comments.between_data);
  visit("at_line_ends", comments.at_line_ends);
  visit("origin", comments.origin);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<MarkFormat> auto& marks) {
  visit("decimal_mark", marks.decimal_mark);
  visit("decimal_mark_origin", marks.decimal_mark_origin);
  visit("thousands_mark", marks.thousands_mark);
  visit("thousands_mark_origin", marks.thousands_mark_origin);
  visit("missing_words", marks.missing_words);
  visit("missing_words_origin", marks.missing_words_origin);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<DataStart> auto& start) {
  visit("rule", start.rule);
  visit("lines", start.lines);
  visit("line", start.line);
  visit("origin", start.origin);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<DataEnd> auto& end) {
  visit("rule", end.rule);
  visit("lines", end.lines);
  visit("line", end.line);
  visit("origin", end.origin);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<Region> auto& region) {
  visit("start", region.start);
  visit("end", region.end);
  visit("first_line", region.first_line);
  visit("end_line", region.end_line);
  visit("name_lines", region.name_lines);
  visit("names_origin", region.names_origin);
  visit("table", region.table);
  visit("num_tables", region.num_tables);
  visit("group_lines", region.group_lines);
  visit("total_lines", region.total_lines);
  visit("other_lines", region.other_lines);
  visit("short_rows", region.short_rows);
  visit("long_rows", region.long_rows);
  visit("has_outer_bars", region.has_outer_bars);
  visit("has_rulers", region.has_rulers);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<NumberFormat> auto& numbers) {
  visit("decimal_mark", numbers.decimal_mark);
  visit("thousands_mark", numbers.thousands_mark);
  visit("percent", numbers.percent);
  visit("per_mille", numbers.per_mille);
  visit("currency", numbers.currency);
  visit("parentheses_are_negative", numbers.parentheses_are_negative);
  visit("minus_is_behind", numbers.minus_is_behind);
  visit("flags", numbers.flags);
  visit("epoch", numbers.epoch);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<DateFormat> auto& dates) {
  visit("order", dates.order);
  visit("pattern", dates.pattern);
  visit("zone", dates.zone);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<Extent> auto& extent) {
  visit("begin", extent.begin);
  visit("end", extent.end);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<Column> auto& column) {
  visit("name", column.name);
  visit("unique_name", column.unique_name);
  visit("type", column.type);
  visit("type_origin", column.type_origin);
  visit("numbers", column.numbers);
  visit("dates", column.dates);
  visit("missing_words", column.missing_words);
  visit("true_words", column.true_words);
  visit("false_words", column.false_words);
  visit("leading_zeros", column.leading_zeros);
  visit("quoted", column.quoted);
  visit("is_rest_of_line", column.is_rest_of_line);
  visit("code_units", column.code_units);
  visit("characters", column.characters);
  visit("bytes", column.bytes);
  visit("gutter", column.gutter);
}

template <class Visitor>
void visit_members(Visitor& visit, Of<Format> auto& format) {
  visit("source", format.source);
  visit("layout", format.layout);
  visit("quoting", format.quoting);
  visit("comments", format.comments);
  visit("marks", format.marks);
  visit("region", format.region);
  visit("columns", format.columns);
}

}  // namespace textimport
