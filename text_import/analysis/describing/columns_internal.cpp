// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/columns_internal.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "text_import/analysis/describing/text_extent_internal.hpp"
#include "text_import/analysis/values/date_order_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr std::size_t num_shapes = static_cast<std::size_t>(ValueShape::Broken) + 1;

bool is_number(ValueType const type) {
  return type == ValueType::Integer || type == ValueType::Real || type == ValueType::Complex;
}

bool is_date(ValueType const type) {
  return type == ValueType::Date || type == ValueType::DateTime;
}

/// What the values of one column have in common, value by value.
class ColumnSummary {
 public:
  /// `is_ascii`: each code unit of the text is a character.
  explicit ColumnSummary(bool const is_ascii) : is_ascii_(is_ascii) {}

  void add(view const field, ValueGrammar const& values) {
    ValueLook const look = values.look_at_type(field);
    view const text = values.value_of(field);
    if (look.shape == ValueShape::Empty) {
      ++counts_.empty;
      return;
    }
    if (look.shape == ValueShape::Missing) {
      add_missing_word(text);
      return;
    }
    ++counts_.values;
    ++shapes_[static_cast<std::size_t>(look.shape)];
    quoted_ += look.quoted ? 1U : 0U;
    counts_.longest_value =
        std::max(counts_.longest_value, is_ascii_ ? text.size() : count_characters(text));
    column_.leading_zeros = column_.leading_zeros || look.leading_zeros;
    add_marks(look.marks);
    if (look.shape == ValueShape::Date || look.shape == ValueShape::DateTime) {
      order_.add(text);
    }
  }

  [[nodiscard]] bool has_decimal_comma() const { return commas_ > 0; }

  /// `has_decimal_comma`: of any column of the table. `given` is a column whose type and marks hold
  /// whatever the values say, null for none.
  DescribedColumn finish(bool const has_decimal_comma, Column const* const given) {
    column_.quoted = counts_.values > 0 && quoted_ == counts_.values;
    settle_marks(has_decimal_comma);
    if (given != nullptr) {
      take_given(*given);
    } else {
      settle_type();
      settle_leading_zeros();
    }
    if (!is_number(column_.type)) {
      column_.numbers = {};
    }
    if (is_date(column_.type) && given == nullptr) {
      column_.dates.order = order_.order();
    }
    return {std::move(column_), counts_};
  }

 private:
  void add_missing_word(view const word) {
    auto& words = column_.missing_words;
    if (std::ranges::find(words, word) == words.end()) {
      words.emplace_back(word);
    }
  }

  void add_marks(NumberMarks const& marks) {
    if (marks.either) {
      ++(marks.decimal == u'.' ? either_points_ : either_commas_);
      return;
    }
    points_ += marks.decimal == u'.' ? 1U : 0U;
    commas_ += marks.decimal == u',' ? 1U : 0U;
    if (marks.thousands != 0) {
      column_.numbers.thousands_mark = marks.thousands;
    }
  }

  void move_shapes(ValueShape const from, ValueShape const to, std::size_t const count) {
    shapes_[static_cast<std::size_t>(from)] -= count;
    shapes_[static_cast<std::size_t>(to)] += count;
  }

  /// "1,234" is a whole number unless a value like "1,5" shows what its comma is; "1.234" is none,
  /// unless another column shows that the decimal mark is the comma.
  void settle_marks(bool const has_decimal_comma) {
    if (commas_ > points_) {
      column_.numbers.decimal_mark = u',';
      move_shapes(ValueShape::Integer, ValueShape::Real, either_commas_);
    } else if (either_commas_ > 0) {
      column_.numbers.thousands_mark = u',';
    }
    if (either_points_ == 0 && points_ == 0) {
      return;
    }
    if (points_ == 0 && has_decimal_comma) {
      column_.numbers.thousands_mark = u'.';
      move_shapes(ValueShape::Real, ValueShape::Integer, either_points_);
    } else if (commas_ <= points_) {
      column_.numbers.decimal_mark = u'.';
    }
  }

  [[nodiscard]] std::size_t count(ValueShape const shape) const {
    return shapes_[static_cast<std::size_t>(shape)];
  }

  /// How many values are of the type.
  [[nodiscard]] std::size_t count_fitting(ValueType const type) const {
    std::size_t const integers = count(ValueShape::Integer);
    std::size_t const reals = integers + count(ValueShape::Real);
    switch (type) {
      case ValueType::Integer:
        return integers;
      case ValueType::Real:
        return reals;
      case ValueType::Complex:
        return reals + count(ValueShape::ComplexNumber);
      case ValueType::Boolean:
        return count(ValueShape::Boolean);
      case ValueType::Date:
        return count(ValueShape::Date);
      case ValueType::DateTime:
        return count(ValueShape::Date) + count(ValueShape::DateTime);
      case ValueType::Time:
      case ValueType::Duration:
        return count(ValueShape::Duration);
      case ValueType::Hexadecimal:
        return count(ValueShape::Hexadecimal);
      case ValueType::Binary:
        return count(ValueShape::Binary);
      case ValueType::Empty:
        return 0;
      case ValueType::Text:
        break;
    }
    return counts_.values;
  }

  /// The narrowest type that nearly all values fit.
  void settle_type() {
    if (counts_.values == 0) {
      return;
    }
    constexpr std::array narrow{ValueType::Integer,  ValueType::Real,        ValueType::Complex,
                                ValueType::Boolean,  ValueType::Date,        ValueType::DateTime,
                                ValueType::Duration, ValueType::Hexadecimal, ValueType::Binary};
    auto const nearly_all = [&](ValueType const type) {
      return count_fitting(type) * 20 >= counts_.values * 19;
    };
    auto const* const found = std::ranges::find_if(narrow, nearly_all);
    column_.type = found != narrow.end() ? *found : ValueType::Text;
    counts_.fitting = count_fitting(column_.type);
  }

  /// A code is text: as a number it would lose its zeros.
  void settle_leading_zeros() {
    if (column_.type == ValueType::Integer && column_.leading_zeros) {
      column_.type = ValueType::Text;
    } else {
      column_.leading_zeros = false;
    }
  }

  void take_given(Column const& given) {
    auto words = std::move(column_.missing_words);
    bool const is_quoted = column_.quoted;
    column_ = given;
    column_.type_origin = Origin::Given;
    column_.missing_words = std::move(words);
    column_.quoted = is_quoted;
    counts_.fitting = count_fitting(given.leading_zeros ? ValueType::Integer : given.type);
  }

  bool is_ascii_;
  Column column_;
  ColumnEvidence counts_;
  std::array<std::size_t, num_shapes> shapes_{};
  std::size_t quoted_ = 0;
  std::size_t points_ = 0;
  std::size_t commas_ = 0;
  std::size_t either_commas_ = 0;
  std::size_t either_points_ = 0;
  DateOrderEvidence order_;
};

}  // namespace

std::vector<DescribedColumn> describe_columns(Reading const& r, HeaderRows const& rows,
                                              LineIndex const& lines,
                                              std::vector<Column> const& given) {
  std::vector<ColumnSummary> summaries(r.block.columns, ColumnSummary(lines.is_ascii()));
  auto const& fields = *r.strategy->field_array();
  for (std::size_t i = rows.first_data; i <= rows.last_data; ++i) {
    if (r.records[i].num_fields != r.block.columns) {
      continue;
    }
    auto const record = fields.record(i);
    for (std::size_t column = 0; column < std::min(record.size(), summaries.size()); ++column) {
      summaries[column].add(record[column].view(), r.values);
    }
  }
  bool const has_decimal_comma = std::ranges::any_of(summaries, &ColumnSummary::has_decimal_comma);
  bool const are_given = given.size() == summaries.size();
  std::vector<DescribedColumn> columns;
  columns.reserve(summaries.size());
  for (std::size_t i = 0; i < summaries.size(); ++i) {
    columns.push_back(summaries[i].finish(has_decimal_comma, are_given ? &given[i] : nullptr));
  }
  return columns;
}

DescribedColumn describe_lines(LineIndex const& lines, std::size_t const first,
                               std::size_t const end, ValueGrammar const& values,
                               std::vector<Column> const& given) {
  constexpr std::size_t enough = 1000;
  ColumnSummary summary(lines.is_ascii());
  for (std::size_t i = first; i < std::min(end, first + enough); ++i) {
    summary.add(lines[i], values);
  }
  return summary.finish(summary.has_decimal_comma(), given.size() == 1 ? given.data() : nullptr);
}

void place_columns(std::vector<Column>& columns, std::vector<std::size_t> const& widths,
                   LineIndex const& lines, std::size_t const first, std::size_t const end,
                   std::string_view const encoding) {
  constexpr std::size_t lines_compared = 250;
  std::size_t const last = std::min(end, first + lines_compared);
  std::size_t begin = 0;
  for (std::size_t column = 0; column < std::min(columns.size(), widths.size()); ++column) {
    std::size_t const behind = begin + widths[column];
    columns[column].code_units = Extent{begin, behind};
    columns[column].characters = extent_in_characters(lines, first, last, begin, behind);
    columns[column].bytes = extent_in_bytes(lines, first, last, begin, behind, encoding);
    begin = behind;
  }
}

char16_t common_decimal_mark(std::vector<Column> const& columns) {
  auto const count = [&](char16_t const mark) {
    return std::ranges::count_if(
        columns, [&](Column const& column) { return column.numbers.decimal_mark == mark; });
  };
  if (count(u',') > count(u'.')) {
    return u',';
  }
  return count(u'.') > 0 ? u'.' : u'\0';
}

}  // namespace textimport::analysis
