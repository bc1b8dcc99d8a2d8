// SPDX-License-Identifier: MIT
//
// The story of a survey: hypotheses, readings, weighing, and what can be said of the answer.
#include "text_import/survey/survey.hpp"

#include <algorithm>
#include <utility>

#include "text_format_detection/model/field_array.hpp"
#include "text_import/analysis/describing/columns_internal.hpp"
#include "text_import/analysis/weighing/confidence_internal.hpp"
#include "text_import/analysis/describing/header_rows_internal.hpp"
#include "text_import/analysis/readings/hypothesis_internal.hpp"
#include "text_import/analysis/describing/line_roles_internal.hpp"
#include "text_import/analysis/readings/collecting_internal.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/analysis/weighing/weighing_internal.hpp"

namespace textimport {

namespace {

using analysis::Hypothesis;
using analysis::Reading;
using analysis::LineIndex;

std::u16string_view text_of(textio::Field const& sample) {
  return sample.view().substr(0, sample.view().find(textio::end_mark));
}

class Surveyor {
 public:
  Surveyor(std::u16string_view const text, SurveyOptions const& options)
      : options_(options), lines_(text, options.parsing.line_endings) {}

  SurveyFindings run() {
    hypotheses_ = propose_hypotheses(lines_, options_);
    if (!(options_.given.layout && options_.layout == Layout::Lines)) {
      readings_ = collect_readings(lines_, hypotheses_, options_);
    }
    analysis::Weighing const weighed = weigh_readings(readings_, is_bound());
    list_candidates(weighed);
    found_.winner = weighed.winner;
    found_.winner ? describe_table(readings_[*found_.winner]) : describe_lines();
    judge();
    return std::move(found_);
  }

 private:
  /// Whether the caller says how the lines are split.
  [[nodiscard]] bool is_bound() const {
    return options_.given.layout || options_.given.delimiter || options_.given.widths;
  }

  void list_candidates(analysis::Weighing const& weighed) {
    for (std::size_t i = 0; i < readings_.size(); ++i) {
      Reading const& r = readings_[i];
      found_.candidates.push_back({hypotheses_[r.hypothesis].name, r.layout, r.delimiter,
                                   r.block.columns, r.coverage, r.soundness, weighed.fates[i].rule,
                                   weighed.fates[i].measure});
    }
  }

  void describe_table(Reading const& r) {
    found_.layout = r.layout;
    found_.delimiter = r.delimiter;
    found_.quote = r.quote;
    found_.comment_style = r.strategy->options().comment_style;
    found_.strategy = r.strategy;
    found_.num_columns = std::max<std::size_t>(r.block.columns, 1);
    if (r.block.regular == 0) {  // no table, yet the caller says how to read it
      found_.columns.resize(found_.num_columns);
      found_.data_ends_at = lines_.count();
      return;
    }
    analysis::HeaderRows const rows = options_.given.header_lines
                                         ? rows_behind(r, options_.parsing.header_lines)
                                         : find_header_rows(r);
    auto around = look_around(r, rows, lines_);
    found_.data_starts_at = around.data_starts_at;
    found_.data_ends_at = around.data_ends_at;
    found_.columns = describe_columns(r, rows);
    if (r.layout == Layout::FixedWidth) {
      place_columns(found_.columns, r.strategy->options().column_widths, lines_,
                    around.data_starts_at, around.data_ends_at, options_.encoding);
    }
    take_surroundings(std::move(around), r.records.size());
    if (found_.decimal_mark == u',' && !options_.given.decimal_mark &&
        !options_.types.replace_characters) {
      found_.strategy = read_with_decimal_comma(r, lines_, options_);
    }
  }

  void take_surroundings(analysis::Surroundings&& around, std::size_t const num_records) {
    bool const sees_end = !options_.goes_on && num_records < options_.records;
    if (!sees_end) {
      std::erase_if(around.lines,
                    [&](NotedLine const& noted) { return noted.line >= around.data_ends_at; });
      found_.data_ends_at.reset();
    }
    found_.lines = std::move(around.lines);
    found_.has_names = around.has_names;
    for (std::size_t column = 0; column < around.names.size(); ++column) {
      found_.columns[column].name = std::move(around.names[column]);
    }
    found_.decimal_mark = options_.given.decimal_mark
                              ? options_.parsing.decimal_separator
                              : analysis::common_decimal_mark(found_.columns, u'.');
  }

  /// The records from the given physical line on are the data.
  static analysis::HeaderRows rows_behind(Reading const& r, std::size_t const header_lines) {
    auto const first = std::ranges::find_if(
        r.records, [&](auto const& record) { return record.line >= header_lines; });
    std::size_t const last = r.records.size() - 1;
    return {std::min(static_cast<std::size_t>(first - r.records.begin()), last),
            std::max(r.block.last, last), std::nullopt};
  }

  void describe_lines() {
    found_.strategy = read_lines(lines_, options_);
    found_.quote = analysis::quote_of(options_.parsing);
    std::size_t const first = first_line();
    auto column = analysis::describe_lines(lines_, first);
    found_.data_starts_at = first;
    if (first > 0 && !options_.given.header_lines) {
      found_.has_names = true;
      column.name = analysis::unquoted(lines_[0], found_.quote);
      found_.lines.push_back({0, LineRole::Names});
    }
    found_.columns.push_back(std::move(column));
    if (!options_.goes_on) {
      found_.data_ends_at = lines_.count();
    }
  }

  /// The line behind the name of a list: a text on top of lines that are all more than text.
  [[nodiscard]] std::size_t first_line() const {
    if (options_.given.header_lines) {
      return std::min(options_.parsing.header_lines, lines_.count());
    }
    if (lines_.count() < 2) {
      return 0;
    }
    auto const is_value = [&](std::size_t const line) {
      return is_typed(analysis::look_at(lines_[line], analysis::quote_of(options_.parsing)).shape);
    };
    bool const has_values = analysis::describe_lines(lines_, 1).type != ValueType::Text;
    return has_values && !is_value(0) ? 1 : 0;
  }

  void judge() {
    if (is_bound()) {
      found_.confidence = 1;
      found_.reason = "given";
      return;
    }
    if (!found_.winner) {
      found_.confidence = lines_.count() == 0 ? 1 : confidence_of_lines(readings_);
      found_.reason = "no reading as a table holds: each line is a value";
      return;
    }
    found_.confidence = confidence_of_table(readings_, *found_.winner);
    found_.decided = found_.confidence >= analysis::decided_from;
    found_.reason = found_.decided ? "one reading as a table is left"
                                   : "too little speaks for the best reading as a table";
    found_.runner_up = find_runner_up(readings_, *found_.winner);
    if (found_.runner_up) {
      found_.runner_up_confidence =
          (1 - found_.confidence) * confidence_of_table(readings_, *found_.runner_up);
    }
  }

  SurveyOptions const& options_;
  LineIndex lines_;
  std::vector<Hypothesis> hypotheses_;
  std::vector<Reading> readings_;
  SurveyFindings found_;
};

}  // namespace

SurveyFindings survey_text(textio::Field const& sample, SurveyOptions const& options) {
  return Surveyor(text_of(sample), options).run();
}

}  // namespace textimport
