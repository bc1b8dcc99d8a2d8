// SPDX-License-Identifier: MIT
//
// What the values of one column have in common. First the values are counted one by one, then the
// columns of the file agree on the marks of numbers, then each settles on its type.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text_import/analysis/values/date_evidence_internal.hpp"
#include "text_import/analysis/values/number_marks_internal.hpp"
#include "text_import/analysis/values/value_grammar_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/format/column.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

struct DescribedColumn {
  Column column;  ///< without its name
  ColumnEvidence counts;
  /// The unit in which its numbers would count seconds since 1970, by their lengths alone.
  EpochUnit possible_epoch = EpochUnit::None;
  /// How sure the type is when the lines are split right, 0 to 1.
  double certainty = 1;
};

/// The words of a column that are few: each once, with how often it stands.
class WordCensus {
 public:
  static constexpr std::size_t most_words = 8;

  void add(std::u16string_view word);

  [[nodiscard]] std::vector<std::pair<std::u16string, std::size_t>> const& words() const {
    return words_;
  }

  [[nodiscard]] bool has_all() const { return has_all_; }

 private:
  /// Nothing more is counted.
  [[nodiscard]] bool is_full() const { return !has_all_ && words_.size() == most_words; }

  std::vector<std::pair<std::u16string, std::size_t>> words_;
  bool has_all_ = true;  ///< there are no others
};

class ColumnSummary {
 public:
  /// `is_ascii`: each code unit of the text is a character.
  explicit ColumnSummary(bool const is_ascii) : is_ascii_(is_ascii) {}

  void add(std::u16string_view field, ValueGrammar const& values);

  /// The numbers, where nearly all values are some; null otherwise.
  [[nodiscard]] NumberTally const* numbers_of_column() const;

  /// `given` is a column whose type and marks hold whatever the values say, null for none.
  DescribedColumn finish(FileStyle const& file, Column const* given);

 private:
  static constexpr std::size_t num_shapes = static_cast<std::size_t>(ValueShape::Broken) + 1;

  void add_number(ValueLook const& look, std::u16string_view text);
  void add_dress(NumberDress const& dress, std::u16string_view text);
  void settle_style(FileStyle const& file);
  void settle_truth();
  void keep_lone_signs();
  void settle_type();
  void settle_numbers();
  void move_missing_words(ValueType type);
  void take_given(Column const& given);
  [[nodiscard]] std::size_t count(ValueShape shape) const;
  [[nodiscard]] bool are_amounts() const;
  [[nodiscard]] std::size_t count_foreign() const;
  [[nodiscard]] std::size_t count_fitting(ValueType type) const;
  [[nodiscard]] bool is_missing_among(std::u16string_view word, ValueType type) const;
  [[nodiscard]] std::size_t count_missing_among(ValueType type) const;
  [[nodiscard]] EpochUnit possible_epoch() const;

  bool is_ascii_;
  Column column_;
  ColumnEvidence counts_;
  std::array<std::size_t, num_shapes> shapes_{};
  std::size_t quoted_ = 0;
  std::size_t missing_ = 0;  ///< words for no value, and the longest of them in code units
  std::size_t longest_missing_ = 0;
  WordCensus words_;  ///< texts and words for true and false
  std::size_t truths_ = 0;
  std::size_t nearest_ = 0;  ///< of a column of texts: values of the type that most of them fit

  NumberTally numbers_;
  std::size_t num_numbers_ = 0;
  MarkStyle style_ = MarkStyle::Point;
  bool marks_are_given_ = false;
  std::size_t flagged_ = 0;
  std::size_t in_parentheses_ = 0;
  std::size_t percents_ = 0;
  std::map<std::uint8_t, std::size_t> currencies_;            ///< how often each stands
  std::size_t fewest_digits_ = static_cast<std::size_t>(-1);  ///< in front of any mark
  std::size_t most_digits_ = 0;

  DateEvidence dates_;
  std::size_t times_of_day_ = 0;
};

}  // namespace textimport::analysis
