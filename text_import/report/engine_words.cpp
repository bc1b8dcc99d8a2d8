// SPDX-License-Identifier: MIT

#include "text_import/report/engine_words.hpp"

#include <array>

namespace textimport {

namespace {

namespace detection = textio::detection;
using detection::CandidateFate;
using detection::NotTried;
using detection::Outcome;
using detection::RejectionClause;
using textio::enums::ColumnType;
using textio::enums::StrategyMode;

constexpr std::array<Word<CandidateFate>, 4> fate_words{{
    {CandidateFate::Accepted, "accepted"},
    {CandidateFate::Rejected, "rejected"},
    {CandidateFate::LessTyped, "less-typed"},
    {CandidateFate::ReplacedByFixedWidth, "replaced-by-fixed-width"},
}};

constexpr std::array<Word<RejectionClause>, 6> clause_words{{
    {RejectionClause::None, "none"},
    {RejectionClause::SingleRecordUncommonDelimiter, "single-record-uncommon-delimiter"},
    {RejectionClause::SingleRecordOneField, "single-record-one-field"},
    {RejectionClause::SingleRecordIrregular, "single-record-irregular"},
    {RejectionClause::Irregular, "irregular"},
    {RejectionClause::OneField, "one-field"},
}};

constexpr std::array<Word<Outcome>, 3> outcome_words{{
    {Outcome::Candidate, "candidate"},
    {Outcome::LineReader, "line-reader"},
    {Outcome::CommaFallback, "comma-fallback"},
}};

constexpr std::array<Word<detection::Reason>, 7> reason_words{{
    {detection::Reason::DateColumns, "date-columns"},
    {detection::Reason::NoRecords, "no-records"},
    {detection::Reason::NoCandidates, "no-candidates"},
    {detection::Reason::Single, "single"},
    {detection::Reason::Ranked, "ranked"},
    {detection::Reason::Tie, "tie"},
    {detection::Reason::NoneLeft, "none-left"},
}};

constexpr std::array<Word<NotTried>, 5> not_tried_words{{
    {NotTried::DecimalMark, "decimal-mark"},
    {NotTried::ThousandsMark, "thousands-mark"},
    {NotTried::NeverDelimiter, "never-delimiter"},
    {NotTried::NotAscii, "not-ascii"},
    {NotTried::OutsideMiddle, "outside-middle"},
}};

constexpr std::array<Word<StrategyMode>, 4> mode_words{{
    {StrategyMode::Delimited, "delimited"},
    {StrategyMode::SpaceAligned, "space-aligned"},
    {StrategyMode::FixedWidth, "fixed-width"},
    {StrategyMode::LineReader, "lines"},
}};

constexpr std::array<Word<ColumnType>, 11> column_type_words{{
    {ColumnType::Reserved, "reserved"},
    {ColumnType::Number, "number"},
    {ColumnType::Text, "text"},
    {ColumnType::DateTime, "date-time"},
    {ColumnType::Undecided, "empty"},
    {ColumnType::Date, "date"},
    {ColumnType::Duration, "duration"},
    {ColumnType::Hexadecimal, "hexadecimal"},
    {ColumnType::Binary, "binary"},
    {ColumnType::ShortDuration, "short-duration"},
    {ColumnType::Delimiter, "delimiter"},
}};

}  // namespace

template <>
std::span<Word<CandidateFate> const> all_words<CandidateFate>() noexcept {
  return fate_words;
}

template <>
std::span<Word<RejectionClause> const> all_words<RejectionClause>() noexcept {
  return clause_words;
}

template <>
std::span<Word<Outcome> const> all_words<Outcome>() noexcept {
  return outcome_words;
}

template <>
std::span<Word<detection::Reason> const> all_words<detection::Reason>() noexcept {
  return reason_words;
}

template <>
std::span<Word<NotTried> const> all_words<NotTried>() noexcept {
  return not_tried_words;
}

template <>
std::span<Word<StrategyMode> const> all_words<StrategyMode>() noexcept {
  return mode_words;
}

template <>
std::span<Word<ColumnType> const> all_words<ColumnType>() noexcept {
  return column_type_words;
}

}  // namespace textimport
