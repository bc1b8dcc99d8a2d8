// SPDX-License-Identifier: MIT
//
// One text to one type. Most texts leave at the first test that asks for a digit; each test after
// it gives up at the first character that does not fit, so a long text is walked once.
#include "text_format_detection/strategies/field_classifier_internal.hpp"

#include <algorithm>
#include <exception>
#include <limits>
#include <new>
#include <string>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_format_detection/platform/datetime.hpp"
#include "text_format_detection/strategies/value_grammar_internal.hpp"

namespace textio::strategies {
namespace {

using enums::ColumnType;
using ostrel::io::text::typedetection::TypeAnalyzerOptions;

ColumnType classify_without_digits(std::u16string_view const text) noexcept {
  if (platform::equals_ignoring_case(text, u"nat")) {
    return ColumnType::DateTime;
  }
  if (is_nan(text) || is_infinity<StrictValues>(text)) {
    return ColumnType::Number;
  }
  return text == u"," || text == u"|" || text == u";" ? ColumnType::Delimiter : ColumnType::Text;
}

void replace_members(std::u16string& text, std::u16string_view const set, char16_t const with) {
  for (char16_t& unit : text) {
    if (set.find(unit) != std::u16string_view::npos) {
      unit = with;
    }
  }
}

void replace_members(std::u16string& text, TypeAnalyzerOptions const& options) {
  replace_members(text, options.second_replacement_set, options.second_replacement);
  replace_members(text, options.first_replacement_set, options.first_replacement);
}

bool reads_as_number(TypeAnalyzerOptions const& options, std::u16string_view const text) {
  NumberGrammar grammar = {.exponent_characters = options.exponent_characters};
  if (options.decimal_digit_limit_set) {
    grammar.max_decimals = options.decimal_digit_limit;
  }
  if (!options.remove_characters && !options.replace_characters) {
    return is_number(text, grammar);
  }
  std::u16string copy(text);
  if (options.remove_characters) {
    std::erase_if(copy, [&options](char16_t const unit) {
      return options.removal_set.find(unit) != std::u16string::npos;
    });
  }
  if (options.replace_characters) {
    replace_members(copy, options);
  }
  return is_number(copy, grammar);
}

std::size_t duration_groups(TypeAnalyzerOptions const& options, std::u16string_view const text) {
  if (!options.replace_characters) {
    return count_duration_groups<StrictValues>(text);
  }
  std::u16string copy(text);
  replace_members(copy, options);
  return count_duration_groups<StrictValues>(copy);
}

/// The date-time test, with a refusal for every error but a lack of memory.
bool reads_as_datetime(TypeAnalyzerOptions const& options, std::u16string_view const text) {
  try {
    return ostrel::io::text::typeconversion::is_datetime(Field(text), options.datetime_format);
  } catch (std::bad_alloc const&) {
    throw;
  } catch (std::exception const&) {
    return false;
  }
}

}  // namespace

ColumnType classify_field(TypeAnalyzerOptions const& options, std::u16string_view const text) {
  if (std::none_of(text.begin(), text.end(), platform::is_digit)) {
    return classify_without_digits(text);
  }
  if (reads_as_number(options, text)) {
    return ColumnType::Number;
  }
  if (is_hexadecimal<StrictValues>(text)) {
    return ColumnType::Hexadecimal;
  }
  if (is_binary<StrictValues>(text)) {
    return ColumnType::Binary;
  }
  if (std::size_t const groups = duration_groups(options, text); groups > 0) {
    return groups == 2 ? ColumnType::ShortDuration : ColumnType::Duration;
  }
  if (reads_as_datetime(options, text)) {
    bool const has_time = text.find(u':') != std::u16string_view::npos;
    return has_time ? ColumnType::DateTime : ColumnType::Date;
  }
  // A format covers the date only.
  if (is_time_beside_date<StrictValues>(text, [&options](std::u16string_view const part) {
        return reads_as_datetime(options, part);
      })) {
    return ColumnType::DateTime;
  }
  // Here a text that holds a number is one that holds a digit: any digit begins a number.
  return options.embedded_numbers ? ColumnType::Number : ColumnType::Text;
}

}  // namespace textio::strategies
