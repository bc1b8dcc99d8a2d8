// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/collecting_internal.hpp"

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"
#include "text_import/analysis/readings/reading_options.hpp"
#include "text_import/analysis/readings/refinements_internal.hpp"
#include "text_import/analysis/readings/unguessed_delimiters_internal.hpp"
#include "text_import/analysis/readings/usual_delimiters_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::DelimitedStrategy;
using textio::FixedWidthStrategy;
using textio::SpaceAlignedStrategy;
using textio::detection::DetectionReport;

using delimiter_list = std::vector<std::u16string>;

/// Fills the list of one analysis.
class ReadingCollector {
 public:
  ReadingCollector(LineIndex const& lines, Task const& task, CollectedReadings& found)
      : lines_(lines), task_(task), found_(found) {}

  /// The engine's decision is kept for the first hypothesis that it is asked about.
  void ask_engine(AssumedOptions const& assumed) {
    DetectionReport report;
    textio::detection::StrategySelector selector(assumed.parsing, task_.types);
    auto decision =
        selector.pick_strategy(textio::Field(lines_.text()), task_.request.records, report);
    for (auto const& sampled : report.sampled) {
      is_plain(task_.syntax) ? add(sampled.strategy, {}) : read_again(assumed, *sampled.strategy);
    }
    if (!task_.request.engine_decides) {
      if (hypothesis_ == 0) {
        delimiters_ = find_text_delimiters(lines_);
      }
      for (std::u16string const& delimiter : unguessed_delimiters(delimiters_, report)) {
        evaluate<DelimitedStrategy>(assumed, delimiter_list{delimiter});
      }
    }
    if (!found_.engine) {
      found_.engine_decision = std::move(decision);
      found_.engine = std::move(report);
    }
  }

  /// Reads by a guess at what lines have beside: at its delimiters, or at those at which the same
  /// hypothesis without the guess splits enough of the text.
  void read_by_syntax(AssumedOptions const& assumed) {
    if (!assumed.parsing.delimiters.empty()) {
      evaluate<DelimitedStrategy>(assumed, assumed.parsing.delimiters);
      return;
    }
    constexpr double least_coverage = 0.3;
    constexpr double least_of_common = 0.1;
    bool const takes_rest = assumed.syntax.rest_of_line > 0;
    std::set<std::u16string> delimiters;
    for (Reading const& r : found_.readings) {
      bool const is_enough =
          r.coverage >= (is_common(r.delimiter) ? least_of_common : least_coverage);
      if (r.hypothesis == assumed.refined && r.layout == Layout::Delimited && is_enough) {
        delimiters.insert(r.delimiter);
      }
    }
    for (std::u16string const& delimiter : delimiters) {
      if (!takes_rest) {
        evaluate<DelimitedStrategy>(assumed, delimiter_list{delimiter});
      }
    }
    if (takes_rest || assumed.syntax.has_end_comments) {
      evaluate<SpaceAlignedStrategy>(assumed);
    }
  }

  /// Reads by what is given of layout, delimiter and widths.
  void read_as_given(AssumedOptions const& assumed) {
    if (!task_.request.delimiters.empty()) {
      evaluate<DelimitedStrategy>(assumed, assumed.parsing.delimiters);
    } else if (!task_.request.widths.empty()) {
      evaluate<FixedWidthStrategy>(assumed, std::vector(assumed.parsing.column_widths));
    } else if (task_.layout == Layout::SpaceAligned) {
      evaluate<SpaceAlignedStrategy>(assumed);
    } else if (task_.layout == Layout::Delimited) {
      is_plain(assumed.hypothesis.syntax) ? ask_engine(assumed) : read_by_syntax(assumed);
      std::erase_if(found_.readings,
                    [](Reading const& r) { return r.layout != Layout::Delimited; });
      if (found_.readings.empty()) {
        evaluate<DelimitedStrategy>(assumed, delimiter_list{u","});
      }
    }
  }

  /// Columns of fixed width, as the positions of the lines show them. A given layout has one, the
  /// likeliest, whatever the lines show.
  void read_fixed_width(AssumedOptions const& assumed, std::size_t const hypothesis,
                        bool const is_given) {
    auto const& markers = assumed.parsing.comment_style;
    auto found = find_fixed_columns(
        lines_, markers.size() == 1 ? std::u16string_view(markers.front()) : std::u16string_view());
    found_.shows_fixed_width = found_.shows_fixed_width || !found.empty();
    if (is_given && found.empty()) {
      found.push_back(single_column(lines_));
    }
    if (is_given) {
      found.erase(found.begin() + 1, found.end());
    }
    for (FixedColumns const& columns : found) {
      auto const strategy =
          std::make_shared<FixedWidthStrategy>(assumed.parsing, task_.types, columns.widths());
      // More than were profiled: the table may stand behind a long preamble.
      constexpr std::size_t least_records = 500;
      textio::evaluate_strategy(strategy, textio::Field(lines_.text()),
                                std::max(task_.request.records, least_records));
      Reading r = measure_records(strategy, lines_, task_, &columns);
      r.hypothesis = hypothesis;
      r.is_read_by_blanks = is_read_by_blanks(r);
      found_.readings.push_back(std::move(r));
    }
  }

  void next_hypothesis() { ++hypothesis_; }

  /// Whether a usual delimiter explains nearly all of the text.
  [[nodiscard]] bool is_explained() const {
    return std::ranges::any_of(found_.readings, [](Reading const& r) {
      return is_common(r.delimiter) && r.coverage >= 0.9 && r.block.columns >= 3;
    });
  }

 private:
  /// Whether blanks split the lines into the same values.
  [[nodiscard]] bool is_read_by_blanks(Reading const& fixed) const {
    return std::ranges::any_of(found_.readings, [&](Reading const& r) {
      return r.layout == Layout::SpaceAligned && r.block.columns == fixed.block.columns &&
             fixed.block.regular > 0 && r.block.regular >= fixed.block.regular &&
             read_alike(fixed, r);
    });
  }

  template <class Strategy, class... Argument>
  void evaluate(AssumedOptions const& assumed, Argument&&... argument) {
    auto strategy = std::make_shared<Strategy>(assumed.parsing, task_.types,
                                               std::forward<Argument>(argument)...);
    sample(strategy, assumed.syntax, lines_, task_.request.records);
    add(std::move(strategy), assumed.syntax);
  }

  /// What the engine sampled, with more in its lines than the engine knows.
  void read_again(AssumedOptions const& assumed, textio::GenericStrategy const& sampled) {
    switch (layout_of(sampled.mode())) {
      case Layout::Delimited:
        evaluate<DelimitedStrategy>(assumed, sampled.options().delimiters);
        break;
      case Layout::SpaceAligned:
        evaluate<SpaceAlignedStrategy>(assumed);
        break;
      case Layout::FixedWidth:
      case Layout::Lines:
        break;
    }
  }

  /// What is guessed to begin comments delimits nothing.
  [[nodiscard]] bool marks_comments(Reading const& r) const {
    auto const& markers = r.strategy->options().comment_style;
    bool const is_given = task_.request.comment_markers || !task_.request.delimiters.empty();
    return !is_given && !r.delimiter.empty() && !markers.empty() &&
           markers.front().starts_with(r.delimiter);
  }

  /// A blank that is no delimiter separates no columns either.
  [[nodiscard]] bool is_excluded(Reading const& r) const {
    bool const is_given = !task_.request.delimiters.empty();
    return !is_given && (task_.excludes(r.delimiter) ||
                         (r.layout == Layout::SpaceAligned && task_.excludes(u" ")));
  }

  void add(std::shared_ptr<textio::GenericStrategy> strategy, LineSyntax const& syntax) {
    Reading r = measure_records(std::move(strategy), lines_, task_);
    set_syntax(r, syntax, task_);
    if (task_.splits_are_given()) {
      take_single_column(r);
    }
    r.hypothesis = hypothesis_;
    if (is_excluded(r) || marks_comments(r)) {
      return;
    }
    if (auto last = measure_last_block(r)) {
      found_.readings.push_back(std::move(*last));
    }
    found_.readings.push_back(std::move(r));
  }

  LineIndex const& lines_;
  Task const& task_;
  CollectedReadings& found_;
  TextDelimiters delimiters_;
  std::size_t hypothesis_ = 0;
};

}  // namespace

CollectedReadings collect_readings(LineIndex const& lines,
                                   std::vector<AssumedOptions> const& hypotheses,
                                   Task const& task) {
  CollectedReadings found;
  if (task.layout == Layout::Lines) {
    return found;
  }
  ReadingCollector collector(lines, task, found);
  for (AssumedOptions const& assumed : hypotheses) {
    if (task.layout) {
      collector.read_as_given(assumed);
    } else if (is_plain(assumed.hypothesis.syntax)) {
      collector.ask_engine(assumed);
    } else {
      collector.read_by_syntax(assumed);
    }
    collector.next_hypothesis();
  }
  settle_refinements(found.readings, hypotheses);
  bool const is_fixed = task.layout == Layout::FixedWidth && task.request.widths.empty();
  bool const is_open = !task.layout && !task.request.engine_decides;
  if (is_fixed || (is_open && !collector.is_explained())) {
    collector.read_fixed_width(hypotheses.front(), 0, is_fixed);
    auto const has_comments = [](AssumedOptions const& assumed) {
      return assumed.hypothesis.comment_markers.size() == 1;
    };
    auto const with = std::ranges::find_if(hypotheses, has_comments);
    if (with != hypotheses.end()) {
      collector.read_fixed_width(*with, static_cast<std::size_t>(with - hypotheses.begin()),
                                 is_fixed);
    }
  }
  return found;
}

std::shared_ptr<textio::GenericStrategy> read_lines(LineIndex const& lines, Task const& task) {
  auto strategy = std::make_shared<textio::LineReaderStrategy>(task.parsing, task.types);
  textio::evaluate_strategy(strategy, textio::Field(lines.text()), task.request.records);
  return strategy;
}

}  // namespace textimport::analysis
