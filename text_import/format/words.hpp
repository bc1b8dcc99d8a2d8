// SPDX-License-Identifier: MIT
//
// Every enumeration of a Format and of its evidence, as words: those of saved files and of
// machine-readable output, which are small letters with dashes between. Each enumeration has one
// table, which is read in both directions.
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>

#include "text_import/export.hpp"
#include "text_import/format/column.hpp"
#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"
#include "text_import/format/origin.hpp"

namespace textimport {

/// A value of an enumeration and its word, a constant.
template <class Enum>
struct Word {
  Enum value;
  std::string_view word;
};

/// All values of an enumeration, ascending, with their words.
template <class Enum>
[[nodiscard]] std::span<Word<Enum> const> all_words() noexcept = delete;

template <>
TEXT_IMPORT_API std::span<Word<Origin> const> all_words<Origin>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<Layout> const> all_words<Layout>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<QuoteEscape> const> all_words<QuoteEscape>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<StartRule> const> all_words<StartRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<EndRule> const> all_words<EndRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<OddRowRule> const> all_words<OddRowRule>() noexcept;

template <>
TEXT_IMPORT_API std::span<Word<ValueType> const> all_words<ValueType>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<DateOrder> const> all_words<DateOrder>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<EpochUnit> const> all_words<EpochUnit>() noexcept;

template <>
TEXT_IMPORT_API std::span<Word<LineRole> const> all_words<LineRole>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<TablePart> const> all_words<TablePart>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<Reason> const> all_words<Reason>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<BrokenRule> const> all_words<BrokenRule>() noexcept;

template <>
TEXT_IMPORT_API std::span<Word<textio::enums::ConsecutiveDelimitersRule> const>
all_words<textio::enums::ConsecutiveDelimitersRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::LeadingDelimitersRule> const>
all_words<textio::enums::LeadingDelimitersRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::TrailingDelimitersRule> const>
all_words<textio::enums::TrailingDelimitersRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::EmptyLineRule> const>
all_words<textio::enums::EmptyLineRule>() noexcept;
template <>
TEXT_IMPORT_API std::span<Word<textio::enums::PartialFieldRule> const>
all_words<textio::enums::PartialFieldRule>() noexcept;

/// The word for a value; empty for a number that is no value of the enumeration.
template <class Enum>
requires std::is_enum_v<Enum>

[[nodiscard]] std::string_view word_of(Enum const value) noexcept {
  auto const words = all_words<Enum>();
  auto const found = std::ranges::find(words, value, &Word<Enum>::value);
  return found == words.end() ? std::string_view() : found->word;
}

/// The value that a word stands for; empty when it stands for none.
template <class Enum>
requires std::is_enum_v<Enum>

[[nodiscard]] std::optional<Enum> from_word(std::string_view const word) noexcept {
  auto const words = all_words<Enum>();
  auto const found = std::ranges::find(words, word, &Word<Enum>::word);
  return found == words.end() ? std::nullopt : std::optional<Enum>(found->value);
}

}  // namespace textimport
