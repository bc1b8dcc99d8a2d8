// SPDX-License-Identifier: MIT
#include "text_import/survey/columns_internal.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "text_import/survey/date_order_internal.hpp"
#include "text_import/survey/text_extent_internal.hpp"
#include "text_import/survey/value_shape_internal.hpp"

namespace textimport::survey {

namespace {

using view = std::u16string_view;

constexpr std::size_t num_shapes = static_cast<std::size_t>(value_shape::Broken) + 1;

/// What the values of one column have in common, value by value.
class column_summary {
 public:
  void add(view const field, char16_t const quote) {
    value_look const look = look_at(field, quote);
    view const text = unquoted(field, quote);
    if (look.shape == value_shape::Empty) {
      ++findings_.empty;
      return;
    }
    if (look.shape == value_shape::Missing) {
      add_missing_word(text);
      return;
    }
    ++findings_.values;
    ++shapes_[static_cast<std::size_t>(look.shape)];
    quoted_ += look.quoted ? 1U : 0U;
    findings_.longest_value = std::max(findings_.longest_value, count_characters(text));
    findings_.leading_zeros = findings_.leading_zeros || look.leading_zeros;
    add_marks(look.marks);
    if (look.shape == value_shape::Date || look.shape == value_shape::DateTime) {
      order_.add(text);
    }
  }

  [[nodiscard]] bool has_decimal_comma() const { return commas_ > 0; }

  /// `has_decimal_comma`: of any column of the table.
  column_findings finish(bool const has_decimal_comma) {
    findings_.quoted = findings_.values > 0 && quoted_ == findings_.values;
    settle_marks(has_decimal_comma);
    settle_type();
    bool const is_number = findings_.type == value_type::Integer ||
                           findings_.type == value_type::Real ||
                           findings_.type == value_type::ComplexNumber;
    if (!is_number) {
      findings_.decimal_mark = 0;
      findings_.thousands_mark = 0;
    }
    if (findings_.type == value_type::Integer && findings_.leading_zeros) {
      findings_.type = value_type::Text;  // a code: as a number it would lose its zeros
    } else {
      findings_.leading_zeros = false;
    }
    bool const is_date =
        findings_.type == value_type::Date || findings_.type == value_type::DateTime;
    findings_.order = is_date ? order_.order() : date_order::None;
    return std::move(findings_);
  }

 private:
  void add_missing_word(view const word) {
    auto& words = findings_.missing_words;
    if (std::ranges::find(words, word) == words.end()) {
      words.emplace_back(word);
    }
  }

  void add_marks(number_marks const& marks) {
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

  void move_shapes(value_shape const from, value_shape const to, std::size_t const count) {
    shapes_[static_cast<std::size_t>(from)] -= count;
    shapes_[static_cast<std::size_t>(to)] += count;
  }

  /// "1,234" is a whole number unless a value like "1,5" shows what its comma is; "1.234" is none,
  /// unless another column shows that the decimal mark is the comma.
  void settle_marks(bool const has_decimal_comma) {
    if (commas_ > points_) {
      findings_.decimal_mark = u',';
      move_shapes(value_shape::Integer, value_shape::Real, either_commas_);
    } else if (either_commas_ > 0) {
      findings_.thousands_mark = u',';
    }
    if (either_points_ == 0 && points_ == 0) {
      return;
    }
    if (points_ == 0 && has_decimal_comma) {
      findings_.thousands_mark = u'.';
      move_shapes(value_shape::Real, value_shape::Integer, either_points_);
    } else if (commas_ <= points_) {
      findings_.decimal_mark = u'.';
    }
  }

  [[nodiscard]] std::size_t count(value_shape const shape) const {
    return shapes_[static_cast<std::size_t>(shape)];
  }

  /// The narrowest type that nearly all values fit.
  void settle_type() {
    if (findings_.values == 0) {
      return;
    }
    std::size_t const integers = count(value_shape::Integer);
    std::size_t const reals = integers + count(value_shape::Real);
    std::size_t const dates = count(value_shape::Date);

    struct choice {
      value_type type;
      std::size_t fitting;
    };

    std::array const choices{
        choice{value_type::Integer, integers},
        choice{value_type::Real, reals},
        choice{value_type::ComplexNumber, reals + count(value_shape::ComplexNumber)},
        choice{value_type::Boolean, count(value_shape::Boolean)},
        choice{value_type::Date, dates},
        choice{value_type::DateTime, dates + count(value_shape::DateTime)},
        choice{value_type::Duration, count(value_shape::Duration)},
        choice{value_type::Hexadecimal, count(value_shape::Hexadecimal)},
        choice{value_type::Binary, count(value_shape::Binary)}};
    auto const nearly_all = [&](choice const& c) {
      return c.fitting * 20 >= findings_.values * 19;
    };
    auto const found = std::ranges::find_if(choices, nearly_all);
    findings_.type = found != choices.end() ? found->type : value_type::Text;
    findings_.fitting = found != choices.end() ? found->fitting : findings_.values;
  }

  column_findings findings_;
  std::array<std::size_t, num_shapes> shapes_{};
  std::size_t quoted_ = 0;
  std::size_t points_ = 0;
  std::size_t commas_ = 0;
  std::size_t either_commas_ = 0;
  std::size_t either_points_ = 0;
  date_order_evidence order_;
};

}  // namespace

std::vector<column_findings> describe_columns(reading const& r, header_rows const& rows) {
  std::vector<column_summary> summaries(r.block.columns);
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
  bool const has_decimal_comma = std::ranges::any_of(summaries, &column_summary::has_decimal_comma);
  std::vector<column_findings> columns;
  columns.reserve(summaries.size());
  for (column_summary& summary : summaries) {
    columns.push_back(summary.finish(has_decimal_comma));
  }
  return columns;
}

column_findings describe_lines(sample_lines const& lines, std::size_t const first) {
  constexpr std::size_t enough = 1000;
  column_summary summary;
  for (std::size_t i = first; i < std::min(lines.count(), first + enough); ++i) {
    summary.add(lines[i], u'"');
  }
  return summary.finish(summary.has_decimal_comma());
}

void place_columns(std::vector<column_findings>& columns, std::vector<std::size_t> const& widths,
                   sample_lines const& lines, std::size_t const first, std::size_t const end,
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

char16_t common_decimal_mark(std::vector<column_findings> const& columns,
                             char16_t const otherwise) {
  auto const count = [&](char16_t const mark) {
    return std::ranges::count(columns, mark, &column_findings::decimal_mark);
  };
  if (count(u',') > count(u'.')) {
    return u',';
  }
  return count(u'.') > 0 ? u'.' : otherwise;
}

}  // namespace textimport::survey
