// SPDX-License-Identifier: MIT
#include "text_import/format/words.hpp"

#include <array>
#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "text_import/report/engine_words.hpp"

namespace textimport {
namespace {

/// Whether the number is an enumerator: the compiler then calls it by its name.
template <auto Value>
constexpr bool is_enumerator() {
  std::string_view const name = __PRETTY_FUNCTION__;
  return name.find("= (") == std::string_view::npos;
}

template <class Enum, std::size_t... Numbers>
std::set<std::size_t> enumerators(std::index_sequence<Numbers...> /*numbers*/) {
  std::set<std::size_t> found;
  ((is_enumerator<static_cast<Enum>(Numbers)>() ? found.insert(Numbers).second : false), ...);
  return found;
}

bool is_word(std::string_view const word) {
  return !word.empty() && word.front() != '-' && word.back() != '-' &&
         std::ranges::all_of(word, [](char const c) { return (c >= 'a' && c <= 'z') || c == '-'; });
}

template <class Enum>
class Words : public testing::Test {};

using enumerations = testing::Types<
    Origin, Layout, QuoteEscape, StartRule, EndRule, OddRowRule, ValueType, DateOrder, EpochUnit,
    LineRole, Reason, BrokenRule, textio::enums::ConsecutiveDelimitersRule,
    textio::enums::LeadingDelimitersRule, textio::enums::TrailingDelimitersRule,
    textio::enums::EmptyLineRule, textio::enums::PartialFieldRule, textio::detection::CandidateFate,
    textio::detection::RejectionClause, textio::detection::Outcome, textio::detection::Reason,
    textio::detection::NotTried, textio::enums::StrategyMode, textio::enums::ColumnType>;
TYPED_TEST_SUITE(Words, enumerations);

TYPED_TEST(Words, name_every_value_once_and_lead_back_to_it) {
  std::set<std::size_t> values;
  std::set<std::string_view> seen;
  for (auto const& [value, word] : all_words<TypeParam>()) {
    EXPECT_TRUE(is_word(word)) << word;
    EXPECT_TRUE(seen.insert(word).second) << word;
    EXPECT_EQ(word_of(value), word);
    EXPECT_EQ(from_word<TypeParam>(word), value) << word;
    values.insert(static_cast<std::size_t>(value));
  }
  EXPECT_EQ(values, enumerators<TypeParam>(std::make_index_sequence<32>()));
  EXPECT_EQ(word_of(static_cast<TypeParam>(200)), "");
  EXPECT_EQ(from_word<TypeParam>("nothing"), std::nullopt);
}

}  // namespace
}  // namespace textimport
