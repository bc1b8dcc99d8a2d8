// SPDX-License-Identifier: MIT
//
// One type for each column: the first non-empty field that is met walking the records from the
// last one up decides. The lines at the top are the ones that may be names or units, so that the
// walk ends before the first record behind the header lines.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "text_format_detection/model/text_view_internal.hpp"
#include "text_format_detection/strategies/column_inspection_internal.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio {

namespace {

using enums::ColumnType;
using ostrel::io::text::typedetection::TypeAnalyzerOptions;

constexpr auto undecided = static_cast<unsigned char>(ColumnType::Undecided);

/// Brings a field into the form that is classified; empty when the field says nothing.
class FieldCleaner {
 public:
  explicit FieldCleaner(TypeAnalyzerOptions const& options)
      : options_(options), whitespace_(options.whitespace) {}

  [[nodiscard]] std::u16string_view clean(std::u16string_view text) const {
    if (options_.trim_whitespace) {
      text = model::trimmed(text, whitespace_);
    }
    char16_t const leading = options_.leading_character;
    if (leading != end_mark && !text.empty() && text.front() == leading) {
      text.remove_prefix(1);
    }
    return is_missing(text) ? std::u16string_view{} : text;
  }

 private:
  [[nodiscard]] bool is_missing(std::u16string_view const text) const {
    auto const& words = options_.missing_values;
    return options_.use_missing_values &&
           std::find(words.begin(), words.end(), text) != words.end();
  }

  TypeAnalyzerOptions const& options_;
  model::UnitSet whitespace_;
};

/// The types of the columns while the records are walked.
class ColumnTypes {
 public:
  ColumnTypes(std::size_t const num_columns, TypeAnalyzerOptions const& options)
      : codes_(num_columns, undecided),
        unsettled_(num_columns),
        options_(options),
        cleaner_(options) {}

  [[nodiscard]] bool all_settled() const noexcept { return unsettled_ == 0; }

  void inspect(std::span<Field const> const record) {
    std::size_t const num_columns = std::min(record.size(), codes_.size());
    for (std::size_t column = 0; column < num_columns; ++column) {
      if (codes_[column] == undecided) {
        inspect(record[column].view(), codes_[column]);
      }
    }
  }

  [[nodiscard]] std::vector<unsigned char> take_codes() { return std::move(codes_); }

 private:
  void inspect(std::u16string_view const field, unsigned char& code) {
    std::u16string_view const text = cleaner_.clean(field);
    if (text.empty()) {
      return;
    }
    ColumnType const type = strategies::classify_field(options_, text);
    code = static_cast<unsigned char>(type);
    // A column of a reserved type is not looked at again, and yet never counts as settled.
    if (type != ColumnType::Undecided && type != ColumnType::Reserved) {
      --unsettled_;
    }
  }

  std::vector<unsigned char> codes_;
  std::size_t unsettled_;
  TypeAnalyzerOptions const& options_;
  FieldCleaner cleaner_;
};

/// Adds to a 32-bit counter, wrapping around.
void add(std::int32_t& counter, std::ptrdiff_t const count) {
  counter = static_cast<std::int32_t>(static_cast<std::uint32_t>(counter) +
                                      static_cast<std::uint32_t>(count));
}

void count_types(std::vector<unsigned char> const& codes, StrategyValuation& valuation) {
  auto const count = [&codes](ColumnType const type) {
    return std::count(codes.begin(), codes.end(), static_cast<unsigned char>(type));
  };
  add(valuation.typed_columns,
      static_cast<std::ptrdiff_t>(codes.size()) - count(ColumnType::Undecided));
  add(valuation.date_columns,
      count(ColumnType::Date) + count(ColumnType::Duration) + count(ColumnType::ShortDuration));
  add(valuation.numeric_columns, count(ColumnType::Number));
  add(valuation.datetime_columns, count(ColumnType::DateTime));
  add(valuation.delimiter_columns, count(ColumnType::Delimiter));
}

}  // namespace

namespace strategies {

std::vector<unsigned char> inspect_columns(FieldArray const* const fields,
                                           std::size_t const header_lines,
                                           TypeAnalyzerOptions const& options,
                                           StrategyValuation& score) {
  ColumnTypes types(score.num_variables, options);
  std::size_t record = fields != nullptr ? fields->num_records() : 0;
  while (record > 0 && record - 1 > header_lines && !types.all_settled()) {
    --record;
    auto const values = fields->record(record);
    if (static_cast<std::int32_t>(values.size()) >= score.typical_fields) {
      types.inspect(values);
    }
  }
  std::vector<unsigned char> codes = types.take_codes();
  count_types(codes, score);
  return codes;
}

}  // namespace strategies

void GenericStrategy::inspect_datatypes() {
  column_types_ =
      strategies::inspect_columns(field_array_.get(), header_lines_, type_options_, valuation_);
  columns_inspected_ = true;
}

}  // namespace textio
