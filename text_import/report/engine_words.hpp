// SPDX-License-Identifier: MIT
//
// The enumerations of the engine's report as words, beside those of format/words.hpp.
#pragma once

#include <span>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/detection/untried_characters.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_import/export.hpp"
#include "text_import/format/words.hpp"

namespace textimport {

template <>
TEXT_IMPORT_API std::span<Word<textio::detection::CandidateFate> const>
all_words<textio::detection::CandidateFate>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::detection::RejectionClause> const>
all_words<textio::detection::RejectionClause>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::detection::Outcome> const>
all_words<textio::detection::Outcome>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::detection::Reason> const>
all_words<textio::detection::Reason>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::detection::NotTried> const>
all_words<textio::detection::NotTried>() noexcept;

/// The layout that a strategy of this mode reads, by the words of Layout.
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::StrategyMode> const>
all_words<textio::enums::StrategyMode>() noexcept;

/// By the words of ValueType, as far as both know the type.
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::ColumnType> const>
all_words<textio::enums::ColumnType>() noexcept;

}  // namespace textimport
