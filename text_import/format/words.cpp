// SPDX-License-Identifier: MIT

#include "text_import/format/words.hpp"

#include <array>

namespace textimport {

namespace {

using textio::enums::ConsecutiveDelimitersRule;
using textio::enums::EmptyLineRule;
using textio::enums::LeadingDelimitersRule;
using textio::enums::PartialFieldRule;
using textio::enums::TrailingDelimitersRule;

constexpr std::array<Word<Origin>, 3> origin_words{{
    {Origin::Default, "default"},
    {Origin::Found, "found"},
    {Origin::Given, "given"},
}};

constexpr std::array<Word<Layout>, 4> layout_words{{
    {Layout::Delimited, "delimited"},
    {Layout::SpaceAligned, "space-aligned"},
    {Layout::FixedWidth, "fixed-width"},
    {Layout::Lines, "lines"},
}};

constexpr std::array<Word<QuoteEscape>, 3> quote_escape_words{{
    {QuoteEscape::Doubled, "doubled"},
    {QuoteEscape::Character, "character"},
    {QuoteEscape::None, "none"},
}};

constexpr std::array<Word<StartRule>, 2> start_rule_words{{
    {StartRule::AfterLines, "after-lines"},
    {StartRule::BehindLine, "behind-line"},
}};

constexpr std::array<Word<EndRule>, 4> end_rule_words{{
    {EndRule::EndOfText, "end-of-text"},
    {EndRule::BlankLine, "blank-line"},
    {EndRule::LineLike, "line-like"},
    {EndRule::LinesBeforeEnd, "lines-before-end"},
}};

constexpr std::array<Word<OddRowRule>, 2> odd_row_words{{
    {OddRowRule::Keep, "keep"},
    {OddRowRule::Reject, "reject"},
}};

constexpr std::array<Word<ValueType>, 12> value_type_words{{
    {ValueType::Empty, "empty"},
    {ValueType::Integer, "integer"},
    {ValueType::Real, "real"},
    {ValueType::Complex, "complex"},
    {ValueType::Boolean, "boolean"},
    {ValueType::Date, "date"},
    {ValueType::DateTime, "date-time"},
    {ValueType::Time, "time"},
    {ValueType::Duration, "duration"},
    {ValueType::Hexadecimal, "hexadecimal"},
    {ValueType::Binary, "binary"},
    {ValueType::Text, "text"},
}};

constexpr std::array<Word<DateOrder>, 5> date_order_words{{
    {DateOrder::None, "none"},
    {DateOrder::YearFirst, "year-first"},
    {DateOrder::DayFirst, "day-first"},
    {DateOrder::MonthFirst, "month-first"},
    {DateOrder::Ambiguous, "ambiguous"},
}};

constexpr std::array<Word<EpochUnit>, 5> epoch_unit_words{{
    {EpochUnit::None, "none"},
    {EpochUnit::Seconds, "seconds"},
    {EpochUnit::Milliseconds, "milliseconds"},
    {EpochUnit::Microseconds, "microseconds"},
    {EpochUnit::Nanoseconds, "nanoseconds"},
}};

constexpr std::array<Word<LineRole>, 12> line_role_words{{
    {LineRole::Title, "title"},
    {LineRole::Comment, "comment"},
    {LineRole::Blank, "blank"},
    {LineRole::Names, "names"},
    {LineRole::Units, "units"},
    {LineRole::Ruler, "ruler"},
    {LineRole::Separator, "separator"},
    {LineRole::Group, "group"},
    {LineRole::Data, "data"},
    {LineRole::Total, "total"},
    {LineRole::Note, "note"},
    {LineRole::Footer, "footer"},
}};

constexpr std::array<Word<TablePart>, 3> table_part_words{{
    {TablePart::FirstLine, "first-line"},
    {TablePart::LastLine, "last-line"},
    {TablePart::Names, "names"},
}};

constexpr std::array<Word<Reason>, 10> reason_words{{
    {Reason::NoRecords, "no-records"},
    {Reason::Given, "given"},
    {Reason::OnlyReading, "only-reading"},
    {Reason::BestReading, "best-reading"},
    {Reason::NoTable, "no-table"},
    {Reason::EngineDecided, "engine-decided"},
    {Reason::Unsure, "unsure"},
    {Reason::ColumnsDiffer, "columns-differ"},
    {Reason::LayoutNotFound, "layout-not-found"},
    {Reason::StartNotFound, "start-not-found"},
}};

constexpr std::array<Word<BrokenRule>, 5> broken_rule_words{{
    {BrokenRule::ConsecutiveDelimiters, "consecutive-delimiters"},
    {BrokenRule::LeadingDelimiters, "leading-delimiters"},
    {BrokenRule::TrailingDelimiters, "trailing-delimiters"},
    {BrokenRule::EmptyLine, "empty-line"},
    {BrokenRule::PartialField, "partial-field"},
}};

constexpr std::array<Word<ConsecutiveDelimitersRule>, 3> consecutive_words{{
    {ConsecutiveDelimitersRule::Split, "split"},
    {ConsecutiveDelimitersRule::Join, "join"},
    {ConsecutiveDelimitersRule::Error, "error"},
}};

constexpr std::array<Word<LeadingDelimitersRule>, 3> leading_words{{
    {LeadingDelimitersRule::Keep, "keep"},
    {LeadingDelimitersRule::Ignore, "ignore"},
    {LeadingDelimitersRule::Error, "error"},
}};

constexpr std::array<Word<TrailingDelimitersRule>, 3> trailing_words{{
    {TrailingDelimitersRule::Keep, "keep"},
    {TrailingDelimitersRule::Ignore, "ignore"},
    {TrailingDelimitersRule::Error, "error"},
}};

constexpr std::array<Word<EmptyLineRule>, 3> empty_line_words{{
    {EmptyLineRule::Skip, "skip"},
    {EmptyLineRule::Read, "read"},
    {EmptyLineRule::Error, "error"},
}};

constexpr std::array<Word<PartialFieldRule>, 6> partial_field_words{{
    {PartialFieldRule::Keep, "keep"},
    {PartialFieldRule::DropField, "drop-field"},
    {PartialFieldRule::DropRecord, "drop-record"},
    {PartialFieldRule::FillMissing, "fill-missing"},
    {PartialFieldRule::Wrap, "wrap"},
    {PartialFieldRule::Error, "error"},
}};

}  // namespace

template <>
std::span<Word<Origin> const> all_words<Origin>() noexcept {
  return origin_words;
}

template <>
std::span<Word<Layout> const> all_words<Layout>() noexcept {
  return layout_words;
}

template <>
std::span<Word<QuoteEscape> const> all_words<QuoteEscape>() noexcept {
  return quote_escape_words;
}

template <>
std::span<Word<StartRule> const> all_words<StartRule>() noexcept {
  return start_rule_words;
}

template <>
std::span<Word<EndRule> const> all_words<EndRule>() noexcept {
  return end_rule_words;
}

template <>
std::span<Word<OddRowRule> const> all_words<OddRowRule>() noexcept {
  return odd_row_words;
}

template <>
std::span<Word<ValueType> const> all_words<ValueType>() noexcept {
  return value_type_words;
}

template <>
std::span<Word<DateOrder> const> all_words<DateOrder>() noexcept {
  return date_order_words;
}

template <>
std::span<Word<EpochUnit> const> all_words<EpochUnit>() noexcept {
  return epoch_unit_words;
}

template <>
std::span<Word<LineRole> const> all_words<LineRole>() noexcept {
  return line_role_words;
}

template <>
std::span<Word<TablePart> const> all_words<TablePart>() noexcept {
  return table_part_words;
}

template <>
std::span<Word<Reason> const> all_words<Reason>() noexcept {
  return reason_words;
}

template <>
std::span<Word<BrokenRule> const> all_words<BrokenRule>() noexcept {
  return broken_rule_words;
}

template <>
std::span<Word<ConsecutiveDelimitersRule> const> all_words<ConsecutiveDelimitersRule>() noexcept {
  return consecutive_words;
}

template <>
std::span<Word<LeadingDelimitersRule> const> all_words<LeadingDelimitersRule>() noexcept {
  return leading_words;
}

template <>
std::span<Word<TrailingDelimitersRule> const> all_words<TrailingDelimitersRule>() noexcept {
  return trailing_words;
}

template <>
std::span<Word<EmptyLineRule> const> all_words<EmptyLineRule>() noexcept {
  return empty_line_words;
}

template <>
std::span<Word<PartialFieldRule> const> all_words<PartialFieldRule>() noexcept {
  return partial_field_words;
}

}  // namespace textimport
