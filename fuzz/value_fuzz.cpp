// SPDX-License-Identifier: MIT
//
// One value: the date-time test and the classifier. When a format is drawn, it is the text up to
// the first NUL.
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using fuzz::Placed;
using fuzz::require;
using textio::Field;
using textio::enums::ColumnType;
using TypeOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

/// Nothing when the format is wrong.
std::optional<bool> is_datetime(Field const& field, std::u16string const& format) {
  try {
    return ostrel::io::text::typeconversion::is_datetime(field, format);
  } catch (std::invalid_argument const&) {
    return std::nullopt;
  }
}

/// The type of a column that holds this value alone. (The first record is never looked at.)
ColumnType type_as_column(TypeOptions const& types, Field const& value) {
  textio::parser::options const options;
  textio::LineReaderStrategy strategy(options, types);
  auto fields = std::make_unique<textio::FieldArray>();
  fields->append_empty_record();
  fields->append_record({&value, 1});
  strategy.field_array(std::move(fields));
  strategy.valuation();
  return static_cast<ColumnType>(strategy.column_types().at(0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  fuzz::Input in(data, size);
  bool const draws_format = in.byte() >= 128;
  TypeOptions types = fuzz::draw_type_options(in);
  std::u16string text = in.text();
  if (draws_format) {
    types.datetime_format = text.substr(0, text.find(u'\0'));
    text.erase(0, types.datetime_format.size() + 1);
  }
  Placed const value(text);
  std::u16string const between = u"12:" + text + u"34-0";
  Field const elsewhere(between.data() + 3, text.size());

  auto const datetime = is_datetime(value.field(), types.datetime_format);
  require(datetime == is_datetime(elsewhere, types.datetime_format), "a date is one everywhere");
  require(datetime.has_value() == is_datetime(Field(), types.datetime_format).has_value(),
          "a format is wrong whatever the field holds");
  if (text.empty()) {
    return 0;
  }
  ColumnType const type = textio::strategies::classify_field(types, value.view());
  require(type == textio::strategies::classify_field(types, elsewhere.view()),
          "a value has one type everywhere");
  require(type != ColumnType::Reserved && type != ColumnType::Undecided, "a value has a type");
  bool const has_digit = text.find_first_of(u"0123456789") != std::u16string::npos;
  if (type == ColumnType::Date || (type == ColumnType::Text && has_digit)) {
    require(datetime.value_or(false) == (type == ColumnType::Date), "the classifier knows dates");
  }
  types.trim_whitespace = types.use_missing_values = false;
  types.leading_character = textio::end_mark;
  if (text.front() != textio::end_mark) {
    require(type_as_column(types, value.field()) == type, "a column has the type of its value");
  }
  return 0;
}
