// SPDX-License-Identifier: MIT

#include "cli/words.hpp"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/display_text.hpp"

namespace cli {

namespace {

using textio::detection::CandidateFate;
using textio::detection::Outcome;
using textio::detection::RejectionClause;
using textio::enums::ColumnType;
using textio::enums::StrategyMode;

constexpr std::array<std::pair<char16_t, std::string_view>, 29> character_names{{
    {u'\0', "NUL"},
    {u'\t', "tab"},
    {u'\v', "vertical tab"},
    {u'\f', "form feed"},
    {u'\x1c', "file separator"},
    {u'\x1d', "group separator"},
    {u'\x1e', "record separator"},
    {u'\x1f', "unit separator"},
    {u' ', "space"},
    {u'!', "exclamation mark"},
    {u'#', "number sign"},
    {u'%', "per cent"},
    {u'&', "ampersand"},
    {u'*', "asterisk"},
    {u',', "comma"},
    {u'.', "full stop"},
    {u'/', "slash"},
    {u':', "colon"},
    {u';', "semicolon"},
    {u'<', "less-than"},
    {u'=', "equals"},
    {u'>', "greater-than"},
    {u'?', "question mark"},
    {u'\\', "backslash"},
    {u'^', "caret"},
    {u'_', "underscore"},
    {u'`', "backquote"},
    {u'|', "vertical bar"},
    {u'~', "tilde"},
}};

std::string joined_names(std::vector<std::u16string> const& delimiters) {
  std::vector<std::string> names;
  names.reserve(delimiters.size());
  for (std::u16string const& delimiter : delimiters) {
    names.push_back(delimiter_name(delimiter));
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

}  // namespace

std::string_view layout_word(StrategyMode const mode) {
  switch (mode) {
    case StrategyMode::Delimited:
      return "delimited";
    case StrategyMode::SpaceAligned:
      return "space-aligned";
    case StrategyMode::FixedWidth:
      return "fixed-width";
    case StrategyMode::LineReader:
      break;
  }
  return "lines";
}

std::string_view type_word(ColumnType const type) {
  switch (type) {
    case ColumnType::Number:
      return "number";
    case ColumnType::Text:
      return "text";
    case ColumnType::DateTime:
      return "datetime";
    case ColumnType::Date:
      return "date";
    case ColumnType::Duration:
    case ColumnType::ShortDuration:
      return "duration";
    case ColumnType::Hexadecimal:
      return "hexadecimal";
    case ColumnType::Binary:
      return "binary";
    case ColumnType::Delimiter:
      return "delimiter";
    case ColumnType::Reserved:
    case ColumnType::Undecided:
      break;
  }
  return "undecided";
}

std::string_view verdict_word(Verdict const verdict) {
  switch (verdict) {
    case Verdict::DateColumns:
      return "date_columns";
    case Verdict::NoRecords:
      return "no_records";
    case Verdict::NoCandidates:
      return "no_candidates";
    case Verdict::Single:
      return "single";
    case Verdict::Ranked:
      return "ranked";
    case Verdict::Tie:
      return "tie";
    case Verdict::NoneLeft:
      return "none_left";
    case Verdict::Given:
      return "given";
    case Verdict::ColumnsDiffer:
      return "columns_differ";
    case Verdict::Unsure:
      break;
  }
  return "unsure";
}

std::string_view fate_word(CandidateFate const fate) {
  switch (fate) {
    case CandidateFate::Accepted:
      return "accepted";
    case CandidateFate::Rejected:
      return "rejected";
    case CandidateFate::LessTyped:
      return "less_typed";
    case CandidateFate::ReplacedByFixedWidth:
      break;
  }
  return "replaced_by_fixed_width";
}

std::string_view clause_word(RejectionClause const clause) {
  switch (clause) {
    case RejectionClause::None:
      return "none";
    case RejectionClause::SingleRecordUncommonDelimiter:
      return "single_record_uncommon_delimiter";
    case RejectionClause::SingleRecordOneField:
      return "single_record_one_field";
    case RejectionClause::SingleRecordIrregular:
      return "single_record_irregular";
    case RejectionClause::Irregular:
      return "irregular";
    case RejectionClause::OneField:
      break;
  }
  return "one_field";
}

std::string_view outcome_word(Outcome const outcome) {
  switch (outcome) {
    case Outcome::Candidate:
      return "candidate";
    case Outcome::LineReader:
      return "line_reader";
    case Outcome::CommaFallback:
      break;
  }
  return "comma_fallback";
}

std::string_view line_ending_word(textimport::LineEndingCounts const& counts) {
  int const kinds = (counts.lf > 0 ? 1 : 0) + (counts.crlf > 0 ? 1 : 0) + (counts.cr > 0 ? 1 : 0);
  if (kinds > 1) {
    return "mixed";
  }
  return counts.lf > 0 ? "LF" : counts.crlf > 0 ? "CRLF" : counts.cr > 0 ? "CR" : "";
}

std::string delimiter_name(std::u16string_view const delimiter) {
  if (delimiter.size() == 1) {
    auto const known = std::ranges::find(character_names, delimiter.front(),
                                         &decltype(character_names)::value_type::first);
    if (known != character_names.end()) {
      return std::string(known->second);
    }
  }
  constexpr std::size_t longest_shown = 30;
  return fmt::format("\"{}\"", display_text(delimiter, longest_shown).utf8);
}

std::string reading_name(textio::GenericStrategy const& strategy) {
  switch (strategy.mode()) {
    case StrategyMode::Delimited:
      return joined_names(strategy.options().delimiters);
    case StrategyMode::SpaceAligned:
      return "runs of blanks";
    case StrategyMode::FixedWidth:
      return "fixed widths";
    case StrategyMode::LineReader:
      break;
  }
  return "whole lines";
}

}  // namespace cli
