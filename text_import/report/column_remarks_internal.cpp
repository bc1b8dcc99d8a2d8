// SPDX-License-Identifier: MIT
#include "text_import/report/column_remarks_internal.hpp"

#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"
#include "text_import/report/reading_words_internal.hpp"

namespace textimport::reporting {

namespace {

std::string missing_text(std::vector<std::u16string> const& words) {
  constexpr std::size_t most = 4;
  constexpr std::size_t longest = 16;
  std::vector<std::string> shown;
  for (std::u16string const& word : words) {
    if (shown.size() < most) {
      shown.push_back(fmt::format("\"{}\"", display_text(word, longest).utf8));
    }
  }
  return fmt::format("missing: {}{}", fmt::join(shown, " "), and_more(words.size() - shown.size()));
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

/// How the values are written.
void add_spelling(std::vector<std::string>& texts, Column const& column) {
  if (column.type_origin == Origin::Given) {
    texts.emplace_back("the type is given");
  }
  if (column.leading_zeros) {
    texts.emplace_back("text for its leading zeros");
  }
  char16_t const decimal = column.numbers.decimal_mark;
  if (decimal != 0 && decimal != u'.') {
    texts.push_back("decimal " + delimiter_name({&decimal, 1}));
  }
  char16_t const thousands = column.numbers.thousands_mark;
  if (thousands != 0) {
    texts.push_back("thousands " + delimiter_name({&thousands, 1}));
  }
  if (!column.dates.pattern.empty()) {
    texts.push_back("written as " + in_quotes(column.dates.pattern));
  } else if (auto const order = order_text(column.dates.order); !order.empty()) {
    texts.emplace_back(order);
  }
  if (column.quoted && column.type != ValueType::Text) {
    texts.emplace_back("in quotes");
  }
}

}  // namespace

std::string column_remarks(Column const& column, ColumnEvidence const& counts) {
  std::vector<std::string> texts;
  add_spelling(texts, column);
  if (counts.fitting < counts.values) {
    texts.push_back(
        fmt::format("{} of {} values are other", counts.values - counts.fitting, counts.values));
  }
  if (counts.empty > 0) {
    texts.push_back(fmt::format("{} empty", counts.empty));
  }
  if (!column.missing_words.empty()) {
    texts.push_back(missing_text(column.missing_words));
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

}  // namespace textimport::reporting
