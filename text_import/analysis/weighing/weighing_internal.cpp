// SPDX-License-Identifier: MIT
#include "text_import/analysis/weighing/weighing_internal.hpp"

#include <algorithm>
#include <array>
#include <numeric>

namespace textimport::analysis {

namespace {

/// In their order. The first asks for no values, so that only those of readings that pass it are
/// looked at.
constexpr std::array all_rules{&regular_records,    &several_columns,       &enough_text,
                               &rare_delimiters,    &sound_values,          &single_blanks,
                               &doubled_delimiters, &seconds_are_no_column, &keys_are_no_column,
                               &typed_fixed_width,  &touching_columns,      &best_fit,
                               &usual_delimiters};

KeptReadings all_of(std::vector<Reading> const& readings) {
  KeptReadings all(readings.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return all;
}

/// Applies one rule and notes who fell.
void run_rule(std::size_t const rule, std::vector<Reading> const& readings, KeptReadings& kept,
              std::vector<ReadingFate>& fates) {
  KeptReadings left = all_rules.at(rule)->apply(kept, readings);
  for (std::size_t const i : kept) {
    if (!std::ranges::binary_search(left, i)) {
      fates[i] = {rule, all_rules.at(rule)->measure(readings[i])};
    }
  }
  kept = std::move(left);
}

}  // namespace

std::vector<RuleText> rule_texts() {
  std::vector<RuleText> texts;
  texts.reserve(all_rules.size());
  for (WeighingRule const* const rule : all_rules) {
    texts.push_back({rule->name, rule->meaning, rule->measure_is_share});
  }
  return texts;
}

Weighing weigh_readings(std::vector<Reading>& readings, bool const is_bound) {
  Weighing result{std::vector<ReadingFate>(readings.size()), std::nullopt};
  KeptReadings kept = all_of(readings);
  run_rule(0, readings, kept, result.fates);
  for (std::size_t const i : kept) {
    measure_values(readings[i]);
  }
  for (std::size_t rule = 1; rule < all_rules.size(); ++rule) {
    run_rule(rule, readings, kept, result.fates);
  }
  if (kept.empty() && is_bound && !readings.empty()) {
    kept = best_fit.apply(all_of(readings), readings);
    result.fates[kept.front()] = {};
  }
  if (!kept.empty()) {
    result.winner = kept.front();
  }
  return result;
}

std::optional<std::size_t> find_runner_up(std::vector<Reading> const& readings,
                                          std::size_t const winner) {
  auto const splits_alike = [&](std::size_t const i) {
    return readings[i].layout == readings[winner].layout &&
           readings[i].delimiter == readings[winner].delimiter;
  };
  std::vector<ReadingFate> fates(readings.size());
  KeptReadings kept = all_of(readings);
  std::erase_if(kept, splits_alike);
  for (std::size_t rule = 0; rule < all_rules.size(); ++rule) {
    run_rule(rule, readings, kept, fates);
  }
  return kept.empty() ? std::nullopt : std::optional(kept.front());
}

}  // namespace textimport::analysis
