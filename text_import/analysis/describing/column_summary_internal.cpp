// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/column_summary_internal.hpp"

#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/describing/column_certainty_internal.hpp"
#include "text_import/analysis/describing/text_extent_internal.hpp"
#include "text_import/analysis/values/column_words_internal.hpp"
#include "text_import/analysis/values/currency_signs_internal.hpp"
#include "text_import/analysis/values/further_times_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::equals_ignoring_case;
using view = std::u16string_view;

constexpr auto narrow_types = std::to_array(
    {ValueType::Integer, ValueType::Real, ValueType::Complex, ValueType::Boolean, ValueType::Date,
     ValueType::DateTime, ValueType::Duration, ValueType::Hexadecimal, ValueType::Binary});

bool is_number(ValueType const type) {
  return type == ValueType::Integer || type == ValueType::Real || type == ValueType::Complex;
}

bool is_date(ValueType const type) {
  return type == ValueType::Date || type == ValueType::DateTime;
}

void add_once(std::vector<std::u16string>& words, view const word) {
  if (std::ranges::find(words, word) == words.end()) {
    words.emplace_back(word);
  }
}

/// "true" and "false" mean nothing else, so one of them is enough.
bool is_plain_truth(TruthWords const& pair) {
  return pair.yes == u"true";
}

}  // namespace

void WordCensus::add(view const word) {
  constexpr std::size_t longest = 16;
  if (is_full()) {
    return;
  }
  auto const known =
      std::ranges::find_if(words_, [word](auto const& counted) { return counted.first == word; });
  if (known != words_.end()) {
    ++known->second;
  } else if (words_.size() < most_words && word.size() <= longest) {
    words_.emplace_back(word, 1);
  } else {
    has_all_ = false;
  }
}

void ColumnSummary::add(view const field, ValueGrammar const& values) {
  ValueLook const look = values.look_at_type(field);
  view const text = values.value_of(field);
  marks_are_given_ = values.marks_are_given();
  if (look.shape == ValueShape::Empty) {
    ++counts_.empty;
    return;
  }
  if (look.shape == ValueShape::Missing) {
    ++missing_;
    longest_missing_ = std::max(longest_missing_, text.size());
    add_once(column_.missing_words, text);
    return;
  }
  ++counts_.values;
  ++shapes_[static_cast<std::size_t>(look.shape)];
  quoted_ += look.quoted ? 1U : 0U;
  counts_.longest_value =
      std::max(counts_.longest_value, is_ascii_ ? text.size() : count_characters(text));
  switch (look.shape) {
    case ValueShape::Integer:
    case ValueShape::Real:
      add_number(look, text);
      break;
    case ValueShape::Date:
    case ValueShape::DateTime:
      dates_.add(text);
      break;
    case ValueShape::Duration:
      times_of_day_ += is_time_of_day(text) ? 1U : 0U;
      break;
    case ValueShape::Word:
    case ValueShape::Boolean:
      words_.add(text);
      break;
    default:
      break;
  }
}

void ColumnSummary::add_number(ValueLook const& look, view const text) {
  ++num_numbers_;
  column_.leading_zeros = column_.leading_zeros || look.leading_zeros;
  std::size_t const digits = textio::platform::leading_digits(text);
  numbers_.add(look, digits, text.front() == u'0');
  fewest_digits_ = std::min(fewest_digits_, digits);
  most_digits_ = std::max(most_digits_, digits);
  if (look.dress != NumberDress()) {
    add_dress(look.dress, text);
  }
}

void ColumnSummary::add_dress(NumberDress const& dress, view const text) {
  NumberFormat& numbers = column_.numbers;
  percents_ += dress.percent ? 1U : 0U;
  numbers.per_mille = numbers.per_mille || dress.per_mille;
  in_parentheses_ += dress.parentheses ? 1U : 0U;
  numbers.minus_is_behind = numbers.minus_is_behind || dress.minus_behind;
  if (dress.flag > 0) {
    ++flagged_;
    add_once(numbers.flags, trimmed(text.substr(text.size() - dress.flag)));
  }
  if (dress.currency > 0) {
    ++currencies_[dress.currency];
  }
}

NumberTally const* ColumnSummary::numbers_of_column() const {
  bool const are_numbers = num_numbers_ > 0 && num_numbers_ * 10 >= counts_.values * 9;
  return are_numbers && !marks_are_given_ ? &numbers_ : nullptr;
}

std::size_t ColumnSummary::count(ValueShape const shape) const {
  return shapes_[static_cast<std::size_t>(shape)];
}

/// The column's own numbers come first. Numbers that fit no style but the other one fit no type of
/// numbers.
void ColumnSummary::settle_style(FileStyle const& file) {
  style_ = numbers_.own_style().value_or(file.style);
  if (marks_are_given_) {
    return;
  }
  counts_.other_marks = numbers_.count_for(opposite(style_));
  bool const may_be_thousands = style_ == MarkStyle::Point && numbers_.count_open_commas() > 0;
  if (!numbers_.own_style() && file.basis == StyleBasis::Default && may_be_thousands) {
    counts_.open_marks = numbers_.count_open_commas();
  }
}

/// Finds the pair of words for true and false that the column is made of.
void ColumnSummary::settle_truth() {
  if (!words_.has_all() || words_.words().empty()) {
    return;
  }
  for (TruthWords const& pair : truth_pairs) {
    std::size_t fitting = 0;
    std::vector<std::u16string> yes;
    std::vector<std::u16string> no;
    for (auto const& [word, number] : words_.words()) {
      bool const is_yes = equals_ignoring_case(word, pair.yes);
      if (is_yes || equals_ignoring_case(word, pair.no)) {
        (is_yes ? yes : no).push_back(word);
        fitting += number;
      }
    }
    bool const is_pair = (!yes.empty() && !no.empty()) || is_plain_truth(pair);
    if (is_pair && fitting > truths_) {
      truths_ = fitting;
      column_.true_words = std::move(yes);
      column_.false_words = std::move(no);
    }
  }
}

/// Numbers that all stand in parentheses, or have a remark behind them for the most part, are
/// texts: notes, numbers with units.
bool ColumnSummary::are_amounts() const {
  return flagged_ * 2 <= num_numbers_ && (in_parentheses_ == 0 || in_parentheses_ < num_numbers_);
}

/// How many numbers are of another currency than most: they cannot be added to those.
std::size_t ColumnSummary::count_foreign() const {
  std::size_t all = 0;
  std::size_t most = 0;
  for (auto const& [currency, number] : currencies_) {
    all += number;
    most = std::max(most, number);
  }
  return all - most;
}

/// How many values are of the type.
std::size_t ColumnSummary::count_fitting(ValueType const type) const {
  std::size_t const foreign = count_foreign();
  std::size_t integers = count(ValueShape::Integer);
  std::size_t numbers = num_numbers_;
  if (!marks_are_given_) {
    integers = numbers_.integers(style_);
    numbers = integers + numbers_.reals(style_);
  }
  integers = are_amounts() ? integers - std::min(integers, foreign) : 0;
  numbers = are_amounts() ? numbers - std::min(numbers, foreign) : 0;
  switch (type) {
    case ValueType::Integer:
      return integers;
    case ValueType::Real:
      return numbers;
    case ValueType::Complex:
      return numbers + count(ValueShape::ComplexNumber);
    case ValueType::Boolean:
      return truths_;
    case ValueType::Date:
      return count(ValueShape::Date);
    case ValueType::DateTime:
      return count(ValueShape::Date) + count(ValueShape::DateTime);
    case ValueType::Time:
    case ValueType::Duration:
      return count(ValueShape::Duration);
    case ValueType::Hexadecimal:
      return count(ValueShape::Hexadecimal);
    case ValueType::Binary:
      return count(ValueShape::Binary);
    case ValueType::Empty:
      return 0;
    case ValueType::Text:
      break;
  }
  return counts_.values;
}

/// Whether the word means that there is no value in a column of the type.
bool ColumnSummary::is_missing_among(view const word, ValueType const type) const {
  std::size_t const typed = count_fitting(type);
  bool const may_be_letter = is_number(type) && typed * 2 > counts_.values;
  return typed > 0 &&
         (means_missing_among_values(word) || (may_be_letter && is_letter_for_missing(word)));
}

std::size_t ColumnSummary::count_missing_among(ValueType const type) const {
  std::size_t missing = 0;
  for (auto const& [word, number] : words_.words()) {
    missing += is_missing_among(word, type) ? number : 0;
  }
  return missing;
}

void ColumnSummary::move_missing_words(ValueType const type) {
  std::size_t const missing = count_missing_among(type);
  for (auto const& [word, number] : words_.words()) {
    if (is_missing_among(word, type)) {
      add_once(column_.missing_words, word);
    }
  }
  counts_.values -= missing;
}

/// Signs that stand for a missing value among others are texts where there are no others.
void ColumnSummary::keep_lone_signs() {
  auto const has_letter = [](std::u16string const& word) {
    return std::ranges::any_of(word, textio::platform::is_letter);
  };
  auto& words = column_.missing_words;
  if (counts_.values == 0 && missing_ > 0 && std::ranges::none_of(words, has_letter)) {
    words.clear();
    counts_.values = missing_;
    counts_.longest_value = longest_missing_;
  }
}

/// The narrowest type that nearly all values fit.
void ColumnSummary::settle_type() {
  keep_lone_signs();
  if (counts_.values == 0) {
    return;
  }
  auto const nearly_all = [&](ValueType const type) {
    std::size_t const fitting = count_fitting(type);
    return fitting > 0 && fitting * 20 >= (counts_.values - count_missing_among(type)) * 19;
  };
  auto const* const found = std::ranges::find_if(narrow_types, nearly_all);
  column_.type = found != narrow_types.end() ? *found : ValueType::Text;
  if (column_.type != ValueType::Text) {
    move_missing_words(column_.type);
  }
  counts_.fitting = count_fitting(column_.type);
  if (column_.type == ValueType::Text) {
    for (ValueType const type : narrow_types) {
      nearest_ = std::max(nearest_, count_fitting(type));
    }
  }
  if (column_.type == ValueType::Duration && times_of_day_ == counts_.fitting) {
    column_.type = ValueType::Time;
  }
  // A code is text: as a number it would lose its zeros.
  column_.leading_zeros = column_.leading_zeros && column_.type == ValueType::Integer;
  column_.type = column_.leading_zeros ? ValueType::Text : column_.type;
}

void ColumnSummary::settle_numbers() {
  NumberMarks const marks = numbers_.marks(style_);
  column_.numbers.decimal_mark = marks.decimal;
  column_.numbers.thousands_mark = marks.thousands;
  column_.numbers.percent = percents_ > 0;
  auto const usual = std::ranges::max_element(currencies_, {},
                                              [](auto const& currency) { return currency.second; });
  if (usual != currencies_.end()) {
    column_.numbers.currency = currency_sign(usual->first);
  }
  column_.numbers.parentheses_are_negative = in_parentheses_ > 0;
}

/// Seconds have ten digits from 2001 to 2286, and each finer unit three more.
EpochUnit ColumnSummary::possible_epoch() const {
  if (!is_number(column_.type) || fewest_digits_ != most_digits_) {
    return EpochUnit::None;
  }
  switch (most_digits_) {
    case 10:
      return EpochUnit::Seconds;
    case 13:
      return EpochUnit::Milliseconds;
    case 16:
      return EpochUnit::Microseconds;
    case 19:
      return EpochUnit::Nanoseconds;
    default:
      return EpochUnit::None;
  }
}

void ColumnSummary::take_given(Column const& given) {
  auto words = std::move(column_.missing_words);
  bool const is_quoted = column_.quoted;
  column_ = given;
  column_.type_origin = Origin::Given;
  column_.missing_words = std::move(words);
  column_.quoted = is_quoted;
  counts_.fitting = count_fitting(given.leading_zeros ? ValueType::Integer : given.type);
}

DescribedColumn ColumnSummary::finish(FileStyle const& file, Column const* const given) {
  column_.quoted = counts_.values > 0 && quoted_ == counts_.values;
  settle_style(file);
  settle_truth();
  if (given != nullptr) {
    take_given(*given);
    return {std::move(column_), counts_, EpochUnit::None, 1};
  }
  settle_type();
  settle_numbers();
  EpochUnit const epoch = possible_epoch();
  if (!is_number(column_.type)) {
    column_.numbers = {};
    counts_.open_marks = 0;
    counts_.other_marks = 0;
  }
  if (is_date(column_.type)) {
    column_.dates = dates_.format();
  }
  if (column_.type != ValueType::Boolean) {
    column_.true_words.clear();
    column_.false_words.clear();
  }
  double const certainty = certainty_of_type(
      {column_, counts_, file, nearest_, num_numbers_, percents_, fewest_digits_, most_digits_});
  return {std::move(column_), counts_, epoch, certainty};
}

}  // namespace textimport::analysis
