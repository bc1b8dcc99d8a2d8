// SPDX-License-Identifier: MIT
//
// The whole decision, at several numbers of records, and the analysis, which asks for several.
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/operation.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_import/analysis/analysis.hpp"

namespace textio::benchmarks {

namespace {

Prepare pick(std::size_t const records) {
  return [records](Shape const& /*shape*/, std::u16string_view const text) {
    return [records, text] {
      static parser::options const options;
      static ostrel::io::text::typedetection::TypeAnalyzerOptions const type_options;
      detection::StrategySelector selector(options, type_options);
      auto const strategy = selector.pick_strategy(Field(text), records);
      return strategy->field_array()->fields().size();
    };
  };
}

Work analysis(Shape const& /*shape*/, std::u16string_view const text) {
  return [text] {
    textimport::TextSample sample;
    sample.text = text;
    return textimport::analyse(sample, {}).format.columns.size();
  };
}

/// The same work over another shape of the same length.
Prepare over_shape(std::string_view const other_name, Prepare const& prepare) {
  return [other_name, prepare](Shape const& /*shape*/, std::u16string_view const text) {
    Shape const& other = find_shape(other_name);
    auto const other_text = std::make_shared<std::u16string const>(other.make(text.size()));
    return [other_text, work = prepare(other, *other_text)] { return work(); };
  };
}

}  // namespace

std::span<Operation const> operations() {
  static std::vector<Operation> const all{
      {.name = "pick_50", .prepare = pick(50)},
      {.name = "pick_250", .prepare = pick(250)},
      {.name = "pick_1000", .prepare = pick(1000)},
      {.name = "pick_all", .prepare = pick(unknown_count)},
      {.name = "analysis_250", .prepare = analysis},
      {.name = "pick_250_candidates",
       .prepare = pick(250),
       .shapes = "forty_eight_candidates",
       .reference_name = "8 candidates",
       .reference = over_shape("eight_candidates", pick(250))},
      {.name = "pick_all_candidates",
       .prepare = pick(unknown_count),
       .shapes = "forty_eight_candidates",
       .reference_name = "8 candidates",
       .reference = over_shape("eight_candidates", pick(unknown_count))},
  };
  return all;
}

}  // namespace textio::benchmarks
