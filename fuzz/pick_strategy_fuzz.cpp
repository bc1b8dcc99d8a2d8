// SPDX-License-Identifier: MIT
//
// Whole decisions, with the caller's options drawn from the input.
#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "tests/support/decision.hpp"
#include "text_format_detection/detection/candidates_internal.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using fuzz::Placed;
using fuzz::require;
using textio::GenericStrategy;
using textio::detection::CandidateFate;
using textio::detection::DetectionReport;
using textio::enums::StrategyMode;
using Options = textio::parser::options;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

struct Caller {
  Options options;
  TypeOptions types;
  std::size_t records;

  std::string decide(Placed const& sample, DetectionReport& report) const {
    textio::detection::StrategySelector selector(options, types);
    auto const answer = selector.pick_strategy(sample.field(), records, report);
    require(answer != nullptr, "there is an answer");
    require(selector.delimiters() == options.delimiters, "the selector stays as it is");
    return support::show_decision(*answer, report);
  }
};

/// A strategy of the same kind, made and sampled outside of the decision, gets the same score.
void require_reproducible(GenericStrategy& strategy, Caller const& caller, Placed const& sample) {
  std::shared_ptr<GenericStrategy> again;
  if (strategy.mode() == StrategyMode::Delimited) {
    again = std::make_shared<textio::DelimitedStrategy>(caller.options, caller.types,
                                                        strategy.options().delimiters);
  } else if (strategy.mode() == StrategyMode::SpaceAligned) {
    again = std::make_shared<textio::SpaceAlignedStrategy>(caller.options, caller.types);
  } else {
    return;  // the header lines of fixed widths were found by the decision
  }
  require(support::same_score(textio::evaluate_strategy(again, sample.field(), caller.records),
                              strategy.valuation()),
          "a strategy gets its score by itself");
}

void require_sound(DetectionReport const& report, Caller const& caller, Placed const& sample) {
  fuzz::require_sound(*report.line_reader->field_array(), sample.view());
  for (auto const& [strategy, fate, clause, candidate] : report.sampled) {
    fuzz::require_sound(*strategy->field_array(), sample.view());
    require_reproducible(*strategy, caller, sample);
    require(candidate.has_value() == (fate == CandidateFate::Accepted), "accepted are listed");
    if (fate == CandidateFate::Rejected || strategy->mode() == StrategyMode::Delimited) {
      auto const asked_again = textio::detection::find_rejection(
          strategy->valuation(), caller.options.ignore_num_variables);
      require(fate == CandidateFate::LessTyped || asked_again == clause,
              "the acceptance test answers the same when asked again");
    }
  }
  std::vector<std::size_t> left(report.candidates.size());
  std::generate(left.begin(), left.end(), [i = std::size_t{0}]() mutable { return i++; });
  for (auto const& [rule, seen, measures, survivors] : report.steps) {
    require(seen == left && measures.size() == seen.size(), "a rule sees what was left");
    require(!survivors.empty() && std::ranges::includes(seen, survivors) &&
                std::ranges::is_sorted(survivors),
            "a rule leaves some, in order");
    left = survivors;
  }
  require(std::ranges::is_sorted(textio::detection::untried_characters(sample.view(), report),
                                 std::ranges::less_equal(),
                                 &textio::detection::UntriedCharacter::character),
          "a character that was not tried is told once");
  require(!report.winner || (left.size() == 1 && left.front() == *report.winner),
          "the winner is the one that is left");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  fuzz::Input in(data, size);
  std::size_t const records = in.byte();
  Caller const caller{fuzz::draw_options(in), fuzz::draw_type_options(in),
                      records == 0 ? 250 : fuzz::draw_count(in)};
  std::u16string const text = in.text();
  Placed const sample(text);
  DetectionReport report;
  std::string const decision = caller.decide(sample, report);
  require_sound(report, caller, sample);

  DetectionReport second;
  Placed const elsewhere(text + u"\uFFFF" + text + u",\t\n;");
  require(caller.decide(elsewhere, second) == decision,
          "the same answer again, and behind the end mark nothing counts");
  return 0;
}
