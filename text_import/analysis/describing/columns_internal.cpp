// SPDX-License-Identifier: MIT
#include "text_import/analysis/describing/columns_internal.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "text_import/analysis/values/date_order_internal.hpp"
#include "text_import/analysis/describing/text_extent_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

constexpr std::size_t num_shapes = static_cast<std::size_t>(ValueShape::Broken) + 1;

/// What the values of one column have in common, value by value.
class ColumnSummary {
 public:
  void add(view const field, char16_t const quote) {
    ValueLook const look = look_at(field, quote);
    view const text = unquoted(field, quote);
    if (look.shape == ValueShape::Empty) {
      ++findings_.empty;
      return;
    }
    if (look.shape == ValueShape::Missing) {
      add_missing_word(text);
      return;
    }
    ++findings_.values;
    ++shapes_[static_cast<std::size_t>(look.shape)];
    quoted_ += look.quoted ? 1U : 0U;
    findings_.longest_value = std::max(findings_.longest_value, count_characters(text));
    findings_.leading_zeros = findings_.leading_zeros || look.leading_zeros;
    add_marks(look.marks);
    if (look.shape == ValueShape::Date || look.shape == ValueShape::DateTime) {
      order_.add(text);
    }
  }

  [[nodiscard]] bool has_decimal_comma() const { return commas_ > 0; }

  /// `has_decimal_comma`: of any column of the table.
  ColumnFindings finish(bool const has_decimal_comma) {
    findings_.quoted = findings_.values > 0 && quoted_ == findings_.values;
    settle_marks(has_decimal_comma);
    settle_type();
    bool const is_number = findings_.type == ValueType::Integer ||
                           findings_.type == ValueType::Real ||
                           findings_.type == ValueType::ComplexNumber;
    if (!is_number) {
      findings_.decimal_mark = 0;
      findings_.thousands_mark = 0;
    }
    if (findings_.type == ValueType::Integer && findings_.leading_zeros) {
      findings_.type = ValueType::Text;  // a code: as a number it would lose its zeros
    } else {
      findings_.leading_zeros = false;
    }
    bool const is_date =
        findings_.type == ValueType::Date || findings_.type == ValueType::DateTime;
    findings_.order = is_date ? order_.order() : DateOrder::None;
    return std::move(findings_);
  }

 private:
  void add_missing_word(view const word) {
    auto& words = findings_.missing_words;
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
      findings_.thousands_mark = marks.thousands;
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
      findings_.decimal_mark = u',';
      move_shapes(ValueShape::Integer, ValueShape::Real, either_commas_);
    } else if (either_commas_ > 0) {
      findings_.thousands_mark = u',';
    }
    if (either_points_ == 0 && points_ == 0) {
      return;
    }
    if (points_ == 0 && has_decimal_comma) {
      findings_.thousands_mark = u'.';
      move_shapes(ValueShape::Real, ValueShape::Integer, either_points_);
    } else if (commas_ <= points_) {
      findings_.decimal_mark = u'.';
    }
  }

  [[nodiscard]] std::size_t count(ValueShape const shape) const {
    return shapes_[static_cast<std::size_t>(shape)];
  }

  /// The narrowest type that nearly all values fit.
  void settle_type() {
    if (findings_.values == 0) {
      return;
    }
    std::size_t const integers = count(ValueShape::Integer);
    std::size_t const reals = integers + count(ValueShape::Real);
    std::size_t const dates = count(ValueShape::Date);

    struct Choice {
      ValueType type;
      std::size_t fitting;
    };

    std::array const choices{
        Choice{ValueType::Integer, integers},
        Choice{ValueType::Real, reals},
        Choice{ValueType::ComplexNumber, reals + count(ValueShape::ComplexNumber)},
        Choice{ValueType::Boolean, count(ValueShape::Boolean)},
        Choice{ValueType::Date, dates},
        Choice{ValueType::DateTime, dates + count(ValueShape::DateTime)},
        Choice{ValueType::Duration, count(ValueShape::Duration)},
        Choice{ValueType::Hexadecimal, count(ValueShape::Hexadecimal)},
        Choice{ValueType::Binary, count(ValueShape::Binary)}};
    auto const nearly_all = [&](Choice const& c) {
      return c.fitting * 20 >= findings_.values * 19;
    };
    auto const found = std::ranges::find_if(choices, nearly_all);
    findings_.type = found != choices.end() ? found->type : ValueType::Text;
    findings_.fitting = found != choices.end() ? found->fitting : findings_.values;
  }

  ColumnFindings findings_;
  std::array<std::size_t, num_shapes> shapes_{};
  std::size_t quoted_ = 0;
  std::size_t points_ = 0;
  std::size_t commas_ = 0;
  std::size_t either_commas_ = 0;
  std::size_t either_points_ = 0;
  DateOrderEvidence order_;
};

}  // namespace

std::vector<ColumnFindings> describe_columns(Reading const& r, HeaderRows const& rows) {
  std::vector<ColumnSummary> summaries(r.block.columns);
  auto const& fields = *r.strategy->field_array();
  for (std::size_t i = rows.first_data; i <= rows.last_data; ++i) {
    if (r.records[i].num_fields != r.block.columns) {
      continue;
    }
    auto const record = fields.record(i);
    for (std::size_t column = 0; column < std::min(record.size(), summaries.size()); ++column) {
      summaries[column].add(record[column].view(), r.quote);
    }
  }
  bool const has_decimal_comma = std::ranges::any_of(summaries, &ColumnSummary::has_decimal_comma);
  std::vector<ColumnFindings> columns;
  columns.reserve(summaries.size());
  for (ColumnSummary& summary : summaries) {
    columns.push_back(summary.finish(has_decimal_comma));
  }
  return columns;
}

ColumnFindings describe_lines(LineIndex const& lines, std::size_t const first) {
  constexpr std::size_t enough = 1000;
  ColumnSummary summary;
  for (std::size_t i = first; i < std::min(lines.count(), first + enough); ++i) {
    summary.add(lines[i], u'"');
  }
  return summary.finish(summary.has_decimal_comma());
}

void place_columns(std::vector<ColumnFindings>& columns, std::vector<std::size_t> const& widths,
                   LineIndex const& lines, std::size_t const first, std::size_t const end,
                   std::string_view const encoding) {
  constexpr std::size_t lines_compared = 250;
  std::size_t const last = std::min(end, first + lines_compared);
  std::size_t begin = 0;
  for (std::size_t column = 0; column < std::min(columns.size(), widths.size()); ++column) {
    std::size_t const behind = begin + widths[column];
    columns[column].characters = extent_in_characters(lines, first, last, begin, behind);
    columns[column].bytes = extent_in_bytes(lines, first, last, begin, behind, encoding);
    begin = behind;
  }
}

char16_t common_decimal_mark(std::vector<ColumnFindings> const& columns,
                             char16_t const otherwise) {
  auto const count = [&](char16_t const mark) {
    return std::ranges::count(columns, mark, &ColumnFindings::decimal_mark);
  };
  if (count(u',') > count(u'.')) {
    return u',';
  }
  return count(u'.') > 0 ? u'.' : otherwise;
}

}  // namespace textimport::analysis
