// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/collecting_internal.hpp"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "text_format_detection/detection/evaluate_strategy.hpp"
#include "text_format_detection/detection/strategy_selector.hpp"
#include "text_format_detection/strategies/layout_strategies.hpp"
#include "text_import/analysis/readings/unguessed_delimiters_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::DelimitedStrategy;
using textio::FixedWidthStrategy;
using textio::SpaceAlignedStrategy;
using textio::detection::DetectionReport;

using delimiter_list = std::vector<std::u16string>;

// Lines behind these are like those before them.
constexpr std::size_t lines_profiled = 2000;

/// Whether characters of one kind stand below each other as they do in columns of fixed width. The
/// less the positions agree, and the fewer lines there are, the more the lengths have to. Names of
/// different lengths agree little, but blanks that run through all lines part them.
bool is_columnar(ColumnProfile const& profile) {
  double const agreement = profile.agreement();
  double const equal = profile.equal_lengths();
  if (profile.num_lines() < 4) {
    return false;
  }
  double const required_equal = profile.num_lines() < 30 ? 0.75 : 0.6;
  bool const has_ragged_columns = profile.num_lines() >= 6 && equal >= 0.5 && profile.has_gutters();
  return (agreement >= 0.5 && equal >= required_equal) || (agreement >= 0.2 && equal >= 0.95) ||
         has_ragged_columns;
}

/// Fills the list of one survey.
class ReadingCollector {
 public:
  ReadingCollector(LineIndex const& lines, SurveyOptions const& options)
      : lines_(lines), options_(options) {}

  void ask_library(Hypothesis const& asked) {
    DetectionReport report;
    textio::detection::StrategySelector selector(asked.parsing, options_.types);
    static_cast<void>(
        selector.pick_strategy(textio::Field(lines_.text()), options_.records, report));
    for (auto const& sampled : report.sampled) {
      add(sampled.strategy);
    }
    for (std::u16string const& delimiter : unguessed_delimiters(lines_, report)) {
      evaluate<DelimitedStrategy>(asked, delimiter_list{delimiter});
    }
  }

  /// Reads by what is given of layout, delimiter and widths.
  void read_as_given(Hypothesis const& asked) {
    GivenParts const& given = options_.given;
    if (given.delimiter) {
      evaluate<DelimitedStrategy>(asked, asked.parsing.delimiters);
    } else if (given.widths) {
      evaluate<FixedWidthStrategy>(asked, std::vector(asked.parsing.column_widths));
    } else if (options_.layout == Layout::SpaceAligned) {
      evaluate<SpaceAlignedStrategy>(asked);
    } else if (options_.layout == Layout::Delimited) {
      ask_library(asked);
      std::erase_if(readings_,
                    [](Reading const& r) { return r.layout != Layout::Delimited; });
      if (readings_.empty()) {
        evaluate<DelimitedStrategy>(asked, delimiter_list{u","});
      }
    }
  }

  /// Columns of fixed width, as the positions of the lines show them. Titles stand at the top, so
  /// that the end of the text may show them better than all of it.
  void read_fixed_width(bool const is_given) {
    std::size_t const end = std::min(lines_.count(), lines_profiled);
    ColumnProfile best(lines_, 0, end);
    for (std::size_t const first : {end / 2, end * 2 / 3}) {
      ColumnProfile profile(lines_, first, end);
      bool const is_clearer = profile.agreement() > best.agreement() + 0.1;
      if (is_columnar(profile) && (is_clearer || !is_columnar(best))) {
        best = std::move(profile);
      }
    }
    if (!is_given && !is_columnar(best)) {
      return;
    }
    auto const strategy =
        std::make_shared<FixedWidthStrategy>(options_.parsing, options_.types, best.widths());
    // All lines that were profiled: the table may stand behind a long preamble.
    textio::evaluate_strategy(strategy, textio::Field(lines_.text()),
                              std::max(options_.records, lines_profiled));
    readings_.push_back(measure_records(strategy, lines_, &best));
    readings_.back().agreement = best.agreement();
  }

  void next_hypothesis() { ++hypothesis_; }

  [[nodiscard]] std::vector<Reading> take() { return std::move(readings_); }

  /// Whether a usual delimiter explains nearly all of the text.
  [[nodiscard]] bool is_explained() const {
    return std::ranges::any_of(readings_, [](Reading const& r) {
      constexpr std::u16string_view usual = u",\t;|";
      bool const is_usual =
          r.delimiter.size() == 1 && usual.find(r.delimiter.front()) != std::u16string_view::npos;
      return is_usual && r.coverage >= 0.9 && r.block.columns >= 3;
    });
  }

 private:
  template <class Strategy, class... Argument>
  void evaluate(Hypothesis const& asked, Argument&&... argument) {
    auto strategy = std::make_shared<Strategy>(asked.parsing, options_.types,
                                               std::forward<Argument>(argument)...);
    textio::evaluate_strategy(strategy, textio::Field(lines_.text()), options_.records);
    add(std::move(strategy));
  }

  void add(std::shared_ptr<textio::GenericStrategy> strategy) {
    Reading r = measure_records(std::move(strategy), lines_);
    r.hypothesis = hypothesis_;
    if (auto last = measure_last_block(r)) {
      readings_.push_back(std::move(*last));
    }
    readings_.push_back(std::move(r));
  }

  LineIndex const& lines_;
  SurveyOptions const& options_;
  std::size_t hypothesis_ = 0;
  std::vector<Reading> readings_;
};

}  // namespace

std::vector<Reading> collect_readings(LineIndex const& lines,
                                      std::vector<Hypothesis> const& hypotheses,
                                      SurveyOptions const& options) {
  GivenParts const& given = options.given;
  bool const is_bound = given.delimiter || given.widths || given.layout;
  ReadingCollector collector(lines, options);
  for (Hypothesis const& asked : hypotheses) {
    is_bound ? collector.read_as_given(asked) : collector.ask_library(asked);
    collector.next_hypothesis();
  }
  bool const is_fixed = given.layout && options.layout == Layout::FixedWidth && !given.widths;
  if (is_fixed || (!is_bound && !collector.is_explained())) {
    collector.read_fixed_width(is_fixed);
  }
  return collector.take();
}

std::shared_ptr<textio::GenericStrategy> read_with_decimal_comma(Reading const& r,
                                                                 LineIndex const& lines,
                                                                 SurveyOptions const& options) {
  auto parsing = r.strategy->options();
  parsing.decimal_separator = u',';
  auto types = options.types;
  types.replace_characters = true;
  types.first_replacement_set += u',';
  types.first_replacement = u'.';
  std::shared_ptr<textio::GenericStrategy> strategy;
  if (r.layout == Layout::Delimited) {
    strategy = std::make_shared<DelimitedStrategy>(parsing, types);
  } else if (r.layout == Layout::SpaceAligned) {
    strategy = std::make_shared<SpaceAlignedStrategy>(parsing, types);
  } else {
    strategy =
        std::make_shared<FixedWidthStrategy>(parsing, types, std::vector(parsing.column_widths));
  }
  textio::evaluate_strategy(strategy, textio::Field(lines.text()), options.records);
  return strategy;
}

std::shared_ptr<textio::GenericStrategy> read_lines(LineIndex const& lines,
                                                    SurveyOptions const& options) {
  auto strategy = std::make_shared<textio::LineReaderStrategy>(options.parsing, options.types);
  textio::evaluate_strategy(strategy, textio::Field(lines.text()), options.records);
  return strategy;
}

}  // namespace textimport::analysis
