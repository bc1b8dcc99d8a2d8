// SPDX-License-Identifier: MIT
//
// Each doubt takes its share of the certainty. The shares were set by hand and held against columns
// of real files cut to 1 to 20 rows: of those that were said to be as sure, about that many kept
// their type in the whole file.
#include "text_import/analysis/describing/column_certainty_internal.hpp"

#include <algorithm>
#include <array>

namespace textimport::analysis {

namespace {

/// Of columns with that many values (1, 2, ...), the share that more rows do not change.
constexpr std::array<double, 5> by_few_values{0.9, 0.95, 0.96, 0.97, 0.98};
constexpr double with_many_values = 0.99;

double by_values(std::size_t const values) noexcept {
  return values > by_few_values.size() ? with_many_values
         : values == 0                 ? by_few_values.front()
                                       : by_few_values[values - 1];
}

/// Values that are other than the type; of texts, those that would be of another type.
double by_fit(SettledColumn const& settled) noexcept {
  auto const values = static_cast<double>(std::max<std::size_t>(settled.counts.values, 1));
  if (settled.column.type == ValueType::Text) {
    double const nearest = static_cast<double>(settled.nearest) / values;
    return settled.column.leading_zeros || nearest <= 0.5 ? 1 : 1.25 - nearest / 2;
  }
  auto const others = static_cast<double>(settled.counts.values - settled.counts.fitting);
  return 1 - 4 * others / values;
}

bool has_letters_for_truth(Column const& column) noexcept {
  auto const is_letter = [](std::u16string const& word) { return word.size() == 1; };
  return std::ranges::any_of(column.true_words, is_letter) ||
         std::ranges::any_of(column.false_words, is_letter);
}

/// What stays open: marks, percents, letters for true and false, dates and times without marks.
double by_doubts(SettledColumn const& settled) noexcept {
  Column const& column = settled.column;
  double certainty = 1;
  auto const doubt = [&](bool const is_met, double const share) {
    certainty *= is_met ? share : 1;
  };
  doubt(settled.counts.open_marks > 0, 0.6);
  doubt(settled.counts.other_marks > 0, 0.8);
  doubt(settled.file.basis == StyleBasis::Hint, 0.9);
  doubt(column.numbers.percent && settled.percents < settled.numbers, 0.9);
  doubt(column.type == ValueType::Boolean && has_letters_for_truth(column), 0.85);
  bool const are_of_eight_digits = settled.fewest_digits == 8 && settled.most_digits == 8;
  doubt(column.type == ValueType::Integer && are_of_eight_digits, 0.85);
  return certainty;
}

}  // namespace

double certainty_of_type(SettledColumn const& settled) noexcept {
  return std::clamp(by_values(settled.counts.values) * by_fit(settled) * by_doubts(settled), 0.0,
                    1.0);
}

}  // namespace textimport::analysis
