// SPDX-License-Identifier: MIT
#include "text_import/survey/survey.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_import/survey/header_rows_internal.hpp"
#include "text_import/survey/hypothesis_internal.hpp"
#include "text_import/survey/reading_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"
#include "text_format_detection/reading/read_records.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"
#include <array>

namespace textimport {

namespace survey {
namespace {

std::string narrow(std::u16string_view t){ std::string s; for(char16_t c: t) s.push_back(c<32?'^':c<127?char(c):'?'); return s; }

std::vector<reading> read_all(std::vector<hypothesis> const& hypotheses, sample_lines const& lines,
                              survey_options const& options) {
  std::vector<reading> readings;
  for (std::size_t h = 0; h < hypotheses.size(); ++h) {
    textio::detection::DetectionReport report;
    textio::detection::StrategySelector selector(hypotheses[h].parsing, options.types);
    static_cast<void>(selector.pick_strategy(textio::Field(lines.text()), options.records, report));
    for (auto const& sampled : report.sampled) {
      readings.push_back(measure_records(sampled.strategy, lines));
      readings.back().hypothesis = h;
    }
    for (char16_t const delimiter : std::u16string_view(u",;\t|")) {
      bool const was_sampled = std::ranges::any_of(report.sampled, [&](auto const& sampled) {
        auto const& delimiters = sampled.strategy->options().delimiters;
        return sampled.strategy->mode() == textio::enums::StrategyMode::Delimited && delimiters.size() == 1 && delimiters.front() == std::u16string(1, delimiter);
      });
      if (was_sampled || lines.text().find(delimiter) == std::u16string_view::npos) continue;
      auto const strategy = std::make_shared<textio::DelimitedStrategy>(hypotheses[h].parsing, options.types, delimiter);
      textio::evaluate_strategy(strategy, textio::Field(lines.text()), options.records);
      readings.push_back(measure_records(strategy, lines));
      readings.back().hypothesis = h;
    }
  }
  return readings;
}

}  // namespace
}  // namespace survey

namespace survey { namespace {

constexpr std::array rules{&several_columns, &regular_records, &rare_delimiters, &sound_values, &seconds_are_no_column, &keys_are_no_column, &touching_columns, &best_fit, &usual_delimiters};

std::optional<reading> read_fixed_width(sample_lines const& lines, survey_options const& options) {
  std::optional<column_profile> best;
  std::size_t const n = std::min<std::size_t>(lines.count(), 2000);
  for (std::size_t const first : {std::size_t{0}, n / 2, n * 2 / 3}) {
    column_profile profile(lines, first, n);
    if (std::getenv("DUMP")) std::printf("   P %zu n%zu agr %.3f eq %.3f\n", first, profile.num_lines(), profile.agreement(), profile.equal_lengths());
    bool const columnar = profile.num_lines() >= 4 && (profile.agreement() >= 0.5 || (profile.agreement() >= 0.42 && profile.equal_lengths() >= 0.5) || (profile.agreement() >= 0.25 && profile.equal_lengths() >= 0.85));
    if (columnar && (!best || profile.agreement() > best->agreement() + 0.1)) { best = std::move(profile); }
  }
  if (!best) return std::nullopt;
  auto widths = best->widths();
  auto const strategy = std::make_shared<textio::FixedWidthStrategy>(options.parsing, options.types, std::move(widths));
  textio::evaluate_strategy(strategy, textio::Field(lines.text()), options.records);
  auto r = measure_records(strategy, lines, &*best);
  r.agreement = best->agreement();
  return r;
}
}}

survey_findings survey_text(textio::Field const& sample, survey_options const& options) {
  using namespace survey;
  std::u16string_view const text = sample.view().substr(0, sample.view().find(textio::end_mark));
  sample_lines const lines(text, options.parsing.line_endings);
  auto const hypotheses = propose_hypotheses(lines, options);
  auto readings = read_all(hypotheses, lines, options);
  if (auto fixed = read_fixed_width(lines, options)) readings.push_back(std::move(*fixed));
  static bool const dump = std::getenv("DUMP") != nullptr;
  survey_findings f;
  kept_readings kept;
  for (std::size_t i=0;i<readings.size();++i) { kept.push_back(i); measure_values(readings[i]); }
  std::vector<std::string_view> fell(readings.size());
  for (auto const* rule : rules) {
    auto left = rule->apply(kept, readings);
    for (auto i : kept) if (std::ranges::find(left,i)==left.end()) fell[i]=rule->name;
    kept=left;
  }
  for (std::size_t i=0;i<readings.size();++i) { auto&r=readings[i];
    if (dump) std::printf("   h%zu %d '%s' k%zu cov %.3f reg %.3f sound %.3f broken %.3f typed %.3f tc %zu rec %zu..%zu of %zu agr %.2f fell %s\n", r.hypothesis, int(r.layout), narrow(r.delimiter).c_str(), r.block.columns, r.coverage, r.regularity, r.soundness, r.broken_share, r.typed_share, r.typed_columns, r.block.first, r.block.last, r.records.size(), r.agreement, std::string(fell[i]).c_str()); }
  if (!kept.empty()) { auto& r=readings[kept[0]];
    f.layout = r.layout; f.delimiter=r.delimiter; f.num_columns=r.block.columns; f.data_starts_at = r.records[find_header_rows(r).first_data].line; f.strategy = r.strategy; f.winner = kept[0]; f.confidence = 0.9; f.reason = "one reading holds"; f.quote = r.quote; f.columns.resize(f.num_columns); }
  else { auto line_reader = std::make_shared<textio::LineReaderStrategy>(options.parsing, options.types); textio::evaluate_strategy(line_reader, textio::Field(text), options.records); f.strategy = line_reader; f.columns.resize(1); f.reason = "no reading holds: each line is a value"; }
  for (std::size_t i=0;i<readings.size();++i) f.candidates.push_back({hypotheses[readings[i].hypothesis].name, readings[i].layout, readings[i].delimiter, readings[i].block.columns, readings[i].coverage, readings[i].soundness, fell[i], 0});
  return f;
}

}  // namespace textimport
