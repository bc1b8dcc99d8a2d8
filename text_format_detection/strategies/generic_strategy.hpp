// SPDX-License-Identifier: MIT
//
// One hypothesis about how a text is laid out, with everything that is needed to test it: its own
// adjusted options, the fields that its reading of a sample gives, and the score of that reading.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "text_format_detection/export.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/field_array.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/strategy_valuation.hpp"

namespace textio {

/// A hypothesis. Made by the constructors of its subclasses, which differ only in how they adjust
/// the options; one made directly reads by the options as they are. Sampled at most once (see
/// evaluate_strategy); scored once, by valuation().
///
/// The sampled fields are views into the sample, which the caller keeps alive as long as they are
/// used; everything else is the strategy's own. Not synchronised: valuation() writes on its first
/// call, and several threads may use a strategy at once only after that.
class TFD_API GenericStrategy {
 public:
  using TypeAnalyzerOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

  GenericStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options,
                  enums::StrategyMode mode);
  GenericStrategy(GenericStrategy const&) = delete;
  GenericStrategy(GenericStrategy&&) = delete;
  GenericStrategy& operator=(GenericStrategy const&) = delete;
  GenericStrategy& operator=(GenericStrategy&&) = delete;
  virtual ~GenericStrategy();

  /// The strategy's own options: those with which to read the whole text.
  [[nodiscard]] parser::options const& options() const noexcept { return options_; }

  [[nodiscard]] TypeAnalyzerOptions const& type_options() const noexcept { return type_options_; }

  [[nodiscard]] enums::StrategyMode mode() const noexcept { return mode_; }

  /// The header lines in force, or `unknown_count` while they are still to be detected. Counts
  /// records of the sample, empty ones included: one that spans several lines in quotes is one.
  [[nodiscard]] std::size_t header_lines() const noexcept { return header_lines_; }

  /// Gives the number of header lines; `unknown_count` has them detected. Returns whether they are
  /// to be detected. The line reader refuses: its header lines are always 0, given.
  bool header_lines(std::size_t n) noexcept;

  /// Whether the header lines are to be detected rather than taken as given. Scoring leaves it.
  [[nodiscard]] bool detects_header_lines() const noexcept { return detect_header_lines_; }

  /// True when a lone space, or blanks, separate the fields.
  [[nodiscard]] bool is_blank_delimited() const noexcept { return blank_delimited_; }

  /// The number of variables (columns) of the data, or `unknown_count` before the scoring.
  [[nodiscard]] std::size_t num_variables() const noexcept;

  /// One ColumnType code for each variable, left to right; empty before the scoring. Undecided
  /// throughout when the scoring found no table to inspect (see has_inspected_columns).
  [[nodiscard]] std::vector<unsigned char> const& column_types() const noexcept {
    return column_types_;
  }

  /// True once the scoring has looked at the values of the columns. It does not when there are no
  /// records, nor when header lines are to be detected and every line holds one field.
  [[nodiscard]] bool has_inspected_columns() const noexcept { return columns_inspected_; }

  /// The fields of the sample, owned by the strategy; null before the sampling.
  [[nodiscard]] FieldArray* field_array() const noexcept { return field_array_.get(); }

  /// Hands in the fields of a sample, in place of any held before.
  void field_array(std::unique_ptr<FieldArray> fields) noexcept;

  /// True once a field array was handed in.
  [[nodiscard]] bool is_sampled() const noexcept { return field_array_set_; }

  /// True once valuation() has computed the score.
  [[nodiscard]] bool is_evaluated() const noexcept { return evaluated_; }

  /// Replaces the set of code units that type inspection trims from a field.
  void reset_whitespace(std::u16string const& whitespace);

  /// The score. The first call computes it from the sampled fields, drops the empty records at
  /// their end, sets the header lines where they are to be detected, and freezes the result; later
  /// calls return it. A strategy that was not sampled is scored as one without records, and stays
  /// so whatever fields are handed in later. Throws std::bad_alloc; score, header lines and column
  /// types are as before then, and the next call computes them.
  StrategyValuation const& valuation();

  /// Gives each variable its type code from the sampled fields, and adds the counts of the codes to
  /// the score's column counters. Part of valuation(), which calls it once.
  void inspect_datatypes();

  /// The largest of 1 and the `counts` (fields of each line) from the header lines on.
  [[nodiscard]] std::size_t get_number_of_variables(std::vector<std::size_t> const& counts) const;

  /// Sets the header lines, unless they are known, from the lines' deviations (see
  /// get_header_lines); `skip` is the smallest number accepted.
  void calculate_headerlines(std::vector<std::size_t> const& deviations, std::size_t skip);

  /// The mean of the deviations behind the header lines; +infinity when there are none.
  [[nodiscard]] double get_data_variation(std::vector<std::size_t> const& deviations) const;

 protected:
  // The subclass constructors adjust these four.
  parser::options& adjustable_options() noexcept { return options_; }

  void set_blank_delimited(bool const value) noexcept { blank_delimited_ = value; }

  void set_prior_rank(double const rank) noexcept { valuation_.prior_rank = rank; }

 private:
  parser::options options_;
  StrategyValuation valuation_;
  bool detect_header_lines_;
  std::size_t header_lines_;
  TypeAnalyzerOptions type_options_;
  std::unique_ptr<FieldArray> field_array_;
  bool evaluated_ = false;
  bool blank_delimited_ = false;
  bool field_array_set_ = false;
  enums::StrategyMode mode_;
  std::vector<unsigned char> column_types_;
  bool columns_inspected_ = false;
};

}  // namespace textio
