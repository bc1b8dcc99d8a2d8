// SPDX-License-Identifier: MIT
//
// Records of the library written as JSON objects. Members that an object has overwrite the
// defaults; a member that no record has is an error. A text is a string, or an array of UTF-16 code
// units; an unknown number is null; an enumerator is its name or number.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/strategy_valuation.hpp"

namespace support {

using nlohmann::json;

/// What the enumerators are called in JSON.
template <class Enum>
inline std::vector<std::string> const names_of;
template <>
inline std::vector<std::string> const names_of<textio::enums::StrategyMode> = {
    "delimited", "space_aligned", "fixed_width", "lines"};
template <>
inline std::vector<std::string> const names_of<textio::enums::Layout> = {
    "automatic", "space_aligned", "fixed_width"};
template <>
inline std::vector<std::string> const names_of<textio::enums::ConsecutiveDelimitersRule> = {
    "split", "join", "error"};
template <>
inline std::vector<std::string> const names_of<textio::enums::LeadingDelimitersRule> = {
    "keep", "ignore", "error"};
template <>
inline std::vector<std::string> const names_of<textio::enums::TrailingDelimitersRule> = {
    "keep", "ignore", "error"};
template <>
inline std::vector<std::string> const names_of<textio::enums::EmptyLineRule> = {"skip", "read",
                                                                                "error"};
template <>
inline std::vector<std::string> const names_of<textio::enums::PartialFieldRule> = {
    "keep", "drop_field", "drop_record", "fill_missing", "wrap", "error"};

void read_value(json const& value, std::u16string& text);
void read_value(json const& value, std::vector<std::u16string>& texts);
void read_value(json const& value, char16_t& unit);
void read_value(json const& value, std::size_t& count);
void read_value(json const& value, double& number);
void read_value(json const& value, std::pair<std::u16string&, char16_t&> replacement);
void read_value(json const& value, std::pair<std::uint32_t&, bool&> limit);

template <class T>
void read_value(json const& value, T& other) {
  if constexpr (std::is_enum_v<T>) {
    auto const name = std::find(names_of<T>.begin(), names_of<T>.end(), value);
    other = static_cast<T>(value.is_number() ? value.get<std::ptrdiff_t>()
                                             : name - names_of<T>.begin());
    if (value.is_string() && name == names_of<T>.end()) {
      throw std::invalid_argument("unknown name " + value.dump());
    }
  } else {
    value.get_to(other);
  }
}

/// Infinities and NaN as strings.
[[nodiscard]] json write_value(double number);
[[nodiscard]] json write_value(std::size_t count);
[[nodiscard]] json write_value(std::int32_t count);
[[nodiscard]] json write_value(std::u16string const& text);
[[nodiscard]] json write_value(std::vector<std::u16string> const& texts);

/// Calls `visit` with the name of each member and the member.
template <class Visit>
void visit_members(textio::parser::options& record, Visit const& visit) {
  visit("delimiters", record.delimiters);
  visit("line_endings", record.line_endings);
  visit("missing_values", record.missing_values);
  visit("comment_style", record.comment_style);
  visit("whitespace", record.whitespace);
  visit("thousands_separator", record.thousands_separator);
  visit("quote_characters", record.quote_characters);
  visit("escape_characters", record.escape_characters);
  visit("layout", record.layout);
  visit("column_widths", record.column_widths);
  visit("header_lines", record.header_lines);
  visit("num_variables", record.num_variables);
  visit("reader_kind", record.reader_kind);
  visit("decimal_separator", record.decimal_separator);
  visit("consecutive_delimiters_rule", record.consecutive_delimiters_rule);
  visit("empty_lines", record.empty_lines);
  visit("leading_delimiters_rule", record.leading_delimiters_rule);
  visit("trailing_delimiters_rule", record.trailing_delimiters_rule);
  visit("partial_field_rule", record.partial_field_rule);
  visit("auxiliary_flag", record.auxiliary_flag);
  visit("detect_header_lines", record.detect_header_lines);
  visit("ignore_num_variables", record.ignore_num_variables);
}

template <class Visit>
void visit_members(ostrel::io::text::typedetection::TypeAnalyzerOptions& record,
                   Visit const& visit) {
  visit("whitespace", record.whitespace);
  visit("leading_character", record.leading_character);
  visit("missing_values", record.missing_values);
  visit("first_replacement", std::pair<std::u16string&, char16_t&>(record.first_replacement_set,
                                                                   record.first_replacement));
  visit("second_replacement", std::pair<std::u16string&, char16_t&>(record.second_replacement_set,
                                                                    record.second_replacement));
  visit("removal", record.removal_set);
  visit("embedded_numbers", record.embedded_numbers);
  visit("trim_whitespace", record.trim_whitespace);
  visit("use_missing_values", record.use_missing_values);
  visit("replace", record.replace_characters);
  visit("remove", record.remove_characters);
  visit("datetime_format", record.datetime_format);
  visit("exponent", record.exponent_characters);
  visit("digit_limit", std::pair<std::uint32_t&, bool&>(record.decimal_digit_limit,
                                                        record.decimal_digit_limit_set));
}

template <class Visit>
void visit_members(textio::StrategyValuation& record, Visit const& visit) {
  visit("mean_deviation", record.mean_deviation);
  visit("data_variation", record.data_variation);
  visit("num_records", record.num_records);
  visit("typical_fields", record.typical_fields);
  visit("num_variables", record.num_variables);
  visit("typed_columns", record.typed_columns);
  visit("date_columns", record.date_columns);
  visit("numeric_columns", record.numeric_columns);
  visit("datetime_columns", record.datetime_columns);
  visit("delimiter_columns", record.delimiter_columns);
  visit("prior_rank", record.prior_rank);
  visit("header_lines", record.header_lines);
}

/// Sets the members that `given` has in any of the records.
template <class... Records>
void read_members(json const& given, Records&... records) {
  std::size_t num_read = 0;
  auto const read = [&](char const* const name, auto&& member) {
    if (auto const found = given.find(name); found != given.end()) {
      read_value(*found, member);
      ++num_read;
    }
  };
  (visit_members(records, read), ...);
  if (num_read != given.size()) {
    throw std::invalid_argument("unknown member in " + given.dump());
  }
}

template <class Record>
[[nodiscard]] Record record_of(json const& given) {
  Record record;
  read_members(given, record);
  return record;
}

template <class Value>
[[nodiscard]] Value value_of(json const& value) {
  Value result{};
  read_value(value, result);
  return result;
}

}  // namespace support
