// SPDX-License-Identifier: MIT
//
// The story of an analysis: hypotheses, readings, weighing, what can be said of the answer, and how
// sure it is.
#include <algorithm>
#include <utility>

#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/analysis.hpp"
#include "text_import/analysis/checking/rule_check_internal.hpp"
#include "text_import/analysis/describing/description_internal.hpp"
#include "text_import/analysis/readings/collecting_internal.hpp"
#include "text_import/analysis/readings/value_measures_internal.hpp"
#include "text_import/analysis/weighing/weighing_internal.hpp"
#include "text_import/analysis/weighing/weights_internal.hpp"

namespace textimport {

namespace {

using analysis::AssumedOptions;
using analysis::CollectedReadings;
using analysis::Description;
using analysis::Reading;
using analysis::Task;
using analysis::Weighing;

class Analyst {
 public:
  Analyst(TextSample const& sample, Request const& request)
      : task_(analysis::make_task(sample, request)) {
    found_.lines = LineIndex(sample.text, task_.parsing.line_endings);
  }

  Analysis run() {
    assumed_ = propose_hypotheses(found_.lines, task_);
    collected_ = collect_readings(found_.lines, assumed_, task_);
    weigh();
    describe();
    judge();
    find_runner_up();
    found_.violation = analysis::find_violation(found_.format, found_.lines, task_.request.records);
    found_.engine = std::move(collected_.engine);
    return std::move(found_);
  }

 private:
  [[nodiscard]] std::vector<Reading>& readings() { return collected_.readings; }

  void weigh() {
    bool const is_engines = task_.request.engine_decides && !task_.layout;
    weighed_ = is_engines ? weigh_by_engine()
                          : analysis::weigh_readings(readings(), found_.lines,
                                                     collected_.engine_decision.get(),
                                                     task_.layout.has_value());
    Evidence& evidence = found_.evidence;
    evidence.winner = weighed_.winner;
    evidence.measures = analysis::measure_texts();
    for (AssumedOptions const& assumed : assumed_) {
      evidence.hypotheses.push_back(assumed.hypothesis);
    }
    for (std::size_t i = 0; i < readings().size(); ++i) {
      Reading const& r = readings()[i];
      add_candidate({r.hypothesis, r.layout, r.delimiter, r.block.columns, r.coverage, r.soundness},
                    weighed_.scores[i]);
    }
    if (weighed_.scores.back().is_table) {
      add_candidate({.num_columns = 1, .coverage = 1}, weighed_.scores.back());
    }
  }

  void add_candidate(Candidate candidate, analysis::ReadingScore& score) {
    candidate.is_table = score.is_table;
    candidate.score = score.score;
    candidate.share = score.share;
    candidate.pieces = std::move(score.pieces);
    found_.evidence.candidates.push_back(std::move(candidate));
  }

  /// The reading that the engine came to. Its comma fallback was never a candidate.
  Weighing weigh_by_engine() {
    Weighing weighed;
    auto const& decision = collected_.engine_decision;
    if (decision->mode() != textio::enums::StrategyMode::LineReader) {
      auto const found = std::ranges::find(readings(), decision, &Reading::strategy);
      weighed.winner = static_cast<std::size_t>(found - readings().begin());
      if (found == readings().end()) {
        textio::evaluate_strategy(decision, textio::Field(found_.lines.text()),
                                  task_.request.records);
        readings().push_back(analysis::measure_records(decision, found_.lines, task_));
      }
      measure_values(readings()[*weighed.winner], found_.lines);
    }
    weighed.certainty = 1;
    weighed.scores.resize(readings().size() + 1);
    return weighed;
  }

  void describe() {
    Description said;
    if (found_.evidence.winner) {
      Reading const& winner = readings()[*found_.evidence.winner];
      found_.strategy = winner.strategy;
      said = describe_table(winner, assumed_[winner.hypothesis].hypothesis, task_, found_.lines);
    } else {
      found_.strategy = analysis::read_lines(found_.lines, task_);
      said = describe_list(task_, found_.lines);
    }
    start_is_missing_ = said.start_is_missing;
    found_.format = std::move(said.format);
    Evidence& evidence = found_.evidence;
    evidence.lines = std::move(said.lines);
    evidence.line_reasons = std::move(said.line_reasons);
    evidence.columns = std::move(said.columns);
    found_.certainty.columns = std::move(said.column_certainties);
    evidence.open_parts = std::move(said.open_parts);
    table_certainty_ = said.table_certainty;
    evidence.units_left_over = said.units_left_over;
    evidence.repeated_names = std::move(said.repeated_names);
    evidence.lines_seen = found_.lines.count();
    evidence.records_sampled = found_.strategy->field_array()->num_records();
    evidence.goes_on = task_.goes_on;
    evidence.expected_columns = task_.request.num_columns;
  }

  void judge() {
    found_.reason = usual_reason();
    found_.certainty.layout = certainty_of_layout();
    if (start_is_missing_) {
      doubt(Reason::StartNotFound);
    } else if (columns_differ()) {
      doubt(Reason::ColumnsDiffer);
    } else if (is_layout_missing()) {
      found_.certainty.layout = 0;
      doubt(Reason::LayoutNotFound);
    } else if (is_unsure()) {
      doubt(Reason::Unsure);
    }
    found_.certainty.table = found_.certainty.layout * table_certainty_;
    found_.table_decided = found_.decided && found_.evidence.open_parts.empty();
  }

  void doubt(Reason const reason) {
    found_.decided = false;
    found_.reason = reason;
  }

  [[nodiscard]] bool has_records() const { return !found_.format.columns.empty(); }

  [[nodiscard]] Reason usual_reason() const {
    if (task_.splits_are_given()) {
      return Reason::Given;
    }
    if (!has_records()) {
      return Reason::NoRecords;
    }
    if (task_.request.engine_decides) {
      return Reason::EngineDecided;
    }
    if (!found_.evidence.winner) {
      return Reason::NoTable;
    }
    return found_.evidence.candidates.size() <= 2 ? Reason::OnlyReading : Reason::BestReading;
  }

  [[nodiscard]] double certainty_of_layout() const {
    if (task_.splits_are_given() || !has_records()) {
      return 1;
    }
    return weighed_.certainty;
  }

  [[nodiscard]] bool columns_differ() const {
    return task_.request.num_columns && has_records() &&
           *task_.request.num_columns != found_.format.columns.size();
  }

  /// A layout that is given, and nothing in the text that splits the lines in that manner.
  [[nodiscard]] bool is_layout_missing() const {
    if (!task_.layout || task_.splits_are_given() || !has_records()) {
      return false;
    }
    bool const is_fixed = *task_.layout == Layout::FixedWidth;
    return found_.format.columns.size() == 1 || (is_fixed && !collected_.shows_fixed_width);
  }

  [[nodiscard]] bool is_unsure() const {
    using textio::detection::Outcome;
    if (task_.splits_are_given() || !has_records()) {
      return false;
    }
    return task_.request.engine_decides
               ? collected_.engine && collected_.engine->outcome == Outcome::CommaFallback
               : found_.certainty.layout < analysis::decided_from;
  }

  void find_runner_up() {
    if (weighed_.runner_up && !task_.splits_are_given()) {
      found_.evidence.runner_up = {*weighed_.runner_up, weighed_.certainty_of_runner_up};
    }
  }

  Task task_;
  std::vector<AssumedOptions> assumed_;
  CollectedReadings collected_;
  Weighing weighed_;
  bool start_is_missing_ = false;
  double table_certainty_ = 1;
  Analysis found_;
};

}  // namespace

Analysis analyse(TextSample const& sample, Request const& request) {
  return Analyst(sample, request).run();
}

}  // namespace textimport
