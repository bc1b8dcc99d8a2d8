// SPDX-License-Identifier: MIT
#include "text_import/report/column_remarks_internal.hpp"

#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "text_import/format/words.hpp"
#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/reading_words_internal.hpp"

namespace textimport::reporting {

namespace {

std::string words_text(std::vector<std::u16string> const& words) {
  constexpr std::size_t most = 4;
  constexpr std::size_t longest = 16;
  std::vector<std::string> shown;
  for (std::u16string const& word : words) {
    if (shown.size() < most) {
      shown.push_back(fmt::format("\"{}\"", display_text(word, longest).utf8));
    }
  }
  return fmt::format("{}{}", fmt::join(shown, " "), and_more(words.size() - shown.size()));
}

std::string_view order_text(DateOrder const order) {
  switch (order) {
    case DateOrder::DayFirst:
      return "day first";
    case DateOrder::MonthFirst:
      return "month first";
    case DateOrder::Ambiguous:
      return "day or month first, no value tells";
    case DateOrder::None:
    case DateOrder::YearFirst:
      break;
  }
  return "";
}

void add_if(std::vector<std::string>& texts, bool const is_so, std::string_view const text) {
  if (is_so) {
    texts.emplace_back(text);
  }
}

void add_marks(std::vector<std::string>& texts, NumberFormat const& numbers) {
  char16_t const decimal = numbers.decimal_mark;
  if (decimal != 0 && decimal != u'.') {
    texts.push_back("decimal " + delimiter_name({&decimal, 1}));
  }
  char16_t const thousands = numbers.thousands_mark;
  if (thousands != 0) {
    texts.push_back("thousands " + delimiter_name({&thousands, 1}));
  }
}

/// What stands around numbers, and what they count.
void add_dress(std::vector<std::string>& texts, NumberFormat const& numbers) {
  add_if(texts, numbers.percent, "per cent");
  add_if(texts, numbers.per_mille, "per mille");
  if (!numbers.currency.empty()) {
    texts.push_back("money in " + words_text({numbers.currency}));
  }
  add_if(texts, numbers.parentheses_are_negative, "negative in parentheses");
  add_if(texts, numbers.minus_is_behind, "the minus sign behind");
  if (!numbers.flags.empty()) {
    texts.push_back("remarks: " + words_text(numbers.flags));
  }
  if (numbers.epoch != EpochUnit::None) {
    texts.push_back(fmt::format("{} since 1970", word_of(numbers.epoch)));
  }
}

void add_dates(std::vector<std::string>& texts, DateFormat const& dates, bool const are_given) {
  if (are_given && !dates.pattern.empty()) {
    texts.push_back("written as " + in_quotes(dates.pattern));
  } else if (auto const order = order_text(dates.order); !order.empty()) {
    texts.emplace_back(order);
  }
  if (!dates.zone.empty()) {
    texts.push_back("zone " + display_text(dates.zone, 16).utf8);
  }
}

/// Whether words for true and false need no telling.
bool are_usual(std::vector<std::u16string> const& true_words) {
  return true_words.empty() || true_words.front().front() == u't' ||
         true_words.front().front() == u'T';
}

/// How the values are written.
void add_spelling(std::vector<std::string>& texts, Column const& column) {
  bool const is_given = column.type_origin == Origin::Given;
  add_if(texts, is_given, "the type is given");
  add_if(texts, column.leading_zeros, "text for its leading zeros");
  add_marks(texts, column.numbers);
  add_dress(texts, column.numbers);
  add_dates(texts, column.dates, is_given);
  if (!are_usual(column.true_words)) {
    texts.push_back(fmt::format("{} true, {} false", words_text(column.true_words),
                                words_text(column.false_words)));
  }
  if (column.quoted && column.type != ValueType::Text) {
    texts.emplace_back("in quotes");
  }
}

}  // namespace

std::string column_remarks(Column const& column, ColumnEvidence const& counts,
                           double const certainty) {
  constexpr double usual = 0.8;
  std::vector<std::string> texts;
  add_spelling(texts, column);
  add_if(texts, counts.open_marks > 0, "thousands or decimals? no number tells");
  if (counts.other_marks > 0) {
    texts.push_back(fmt::format("{} with other marks", counts.other_marks));
  }
  if (counts.fitting < counts.values) {
    texts.push_back(
        fmt::format("{} of {} values are other", counts.values - counts.fitting, counts.values));
  }
  if (counts.empty > 0) {
    texts.push_back(fmt::format("{} empty", counts.empty));
  }
  if (!column.missing_words.empty()) {
    texts.push_back("missing: " + words_text(column.missing_words));
  }
  if (certainty < usual) {
    texts.push_back("the type is sure to " + share_text(certainty));
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

}  // namespace textimport::reporting
