// SPDX-License-Identifier: MIT
//
// Answers cases from standard input, one JSON object a line, so that an outside model of the
// library can be compared with it. A text is a JSON string or an array of UTF-16 code units.
#include <cmath>
#include <iostream>
#include <string>

#include <nlohmann/json.hpp>

#include "text_format_detection/detection/picker_rules/ranking_internal.hpp"
#include "text_format_detection/reading/sampler_internal.hpp"
#include "text_format_detection/strategies/field_classifier_internal.hpp"
#include "text_format_detection/text_format_detection.hpp"

namespace {

using nlohmann::json;
using ostrel::io::text::typedetection::TypeAnalyzerOptions;
using textio::GenericStrategy;
using textio::StrategyValuation;
using textio::unknown_count;
using textio::parser::options;
namespace enums = textio::enums;
namespace exception = textio::parser::exception;

// Texts.

std::u16string to_utf16(std::string const& utf8) {
  std::u16string out;
  for (std::size_t i = 0; i < utf8.size();) {
    auto const byte = static_cast<unsigned char>(utf8[i]);
    std::size_t const length = byte < 0x80 ? 1U : byte < 0xE0 ? 2U : byte < 0xF0 ? 3U : 4U;
    auto point = static_cast<char32_t>(length == 1 ? byte : byte & (0x7FU >> length));
    for (std::size_t k = 1; k < length; ++k) {
      point = (point << 6U) | (static_cast<unsigned char>(utf8.at(i + k)) & 0x3FU);
    }
    i += length;
    if (point >= 0x10000) {
      out.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10U)));
      point = 0xDC00 + (point & 0x3FFU);
    }
    out.push_back(static_cast<char16_t>(point));
  }
  return out;
}

/// For the strings of options, which hold no lone surrogates.
std::string to_utf8(std::u16string const& utf16) {
  std::string out;
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t point = utf16[i];
    if (point >= 0xD800 && point < 0xDC00 && i + 1 < utf16.size()) {
      point = 0x10000 + ((point - 0xD800) << 10U) + (utf16[++i] - 0xDC00U);
    }
    auto const put = [&out](char32_t const byte) { out.push_back(static_cast<char>(byte)); };
    if (point < 0x80) {
      put(point);
    } else if (point < 0x800) {
      put(0xC0 | (point >> 6U));
      put(0x80 | (point & 0x3FU));
    } else if (point < 0x10000) {
      put(0xE0 | (point >> 12U));
      put(0x80 | ((point >> 6U) & 0x3FU));
      put(0x80 | (point & 0x3FU));
    } else {
      put(0xF0 | (point >> 18U));
      put(0x80 | ((point >> 12U) & 0x3FU));
      put(0x80 | ((point >> 6U) & 0x3FU));
      put(0x80 | (point & 0x3FU));
    }
  }
  return out;
}

std::u16string text_of(json const& value) {
  if (value.is_string()) {
    return to_utf16(value.get<std::string>());
  }
  std::u16string out;
  for (json const& unit : value) {
    out.push_back(static_cast<char16_t>(unit.get<unsigned>()));
  }
  return out;
}

std::vector<std::u16string> texts_of(json const& value) {
  std::vector<std::u16string> out;
  for (json const& text : value) {
    out.push_back(text_of(text));
  }
  return out;
}

json list_of(std::vector<std::u16string> const& texts) {
  json out = json::array();
  for (std::u16string const& text : texts) {
    out.push_back(to_utf8(text));
  }
  return out;
}

// Numbers.

std::size_t count_of(json const& value) {
  return value.is_null() ? unknown_count : value.get<std::size_t>();
}

json count_out(std::size_t const count) {
  return count == unknown_count ? json() : json(count);
}

json double_out(double const value) {
  if (std::isnan(value)) {
    return "nan";
  }
  return std::isinf(value) ? json("inf") : json(value);
}

double double_of(json const& value) {
  return value.is_string() ? std::stod(value.get<std::string>()) : value.get<double>();
}

// Members that are there overwrite the defaults.

template <class Read, class T>
void read_member(json const& object, char const* const name, T& member, Read const read) {
  if (auto const found = object.find(name); found != object.end()) {
    member = static_cast<T>(read(*found));
  }
}

unsigned byte_of(json const& value) {
  return value.get<unsigned>();
}

bool flag_of(json const& value) {
  return value.get<bool>();
}

char16_t unit_of(json const& value) {
  return value.is_null() ? textio::end_mark : text_of(value).at(0);
}

options options_of(json const& given) {
  options out;
  read_member(given, "delimiters", out.delimiters, texts_of);
  read_member(given, "line_endings", out.line_endings, texts_of);
  read_member(given, "missing_values", out.missing_values, texts_of);
  read_member(given, "comment_style", out.comment_style, texts_of);
  read_member(given, "whitespace", out.whitespace, text_of);
  read_member(given, "thousands_separator", out.thousands_separator, text_of);
  read_member(given, "quote_characters", out.quote_characters, text_of);
  read_member(given, "escape_characters", out.escape_characters, text_of);
  read_member(given, "layout", out.layout, byte_of);
  read_member(given, "column_widths", out.column_widths,
              [](json const& widths) { return widths.get<std::vector<std::size_t>>(); });
  read_member(given, "header_lines", out.header_lines, count_of);
  read_member(given, "num_variables", out.num_variables, count_of);
  read_member(given, "reader_kind", out.reader_kind, byte_of);
  read_member(given, "decimal_separator", out.decimal_separator, unit_of);
  read_member(given, "consecutive_delimiters_rule", out.consecutive_delimiters_rule, byte_of);
  read_member(given, "empty_lines", out.empty_lines, byte_of);
  read_member(given, "leading_delimiters_rule", out.leading_delimiters_rule, byte_of);
  read_member(given, "trailing_delimiters_rule", out.trailing_delimiters_rule, byte_of);
  read_member(given, "partial_field_rule", out.partial_field_rule, byte_of);
  read_member(given, "auxiliary_flag", out.auxiliary_flag, flag_of);
  read_member(given, "detect_header_lines", out.detect_header_lines, flag_of);
  read_member(given, "ignore_num_variables", out.ignore_num_variables, flag_of);
  return out;
}

void read_replacement(json const& given, char const* const name, std::u16string& set,
                      char16_t& replacement) {
  if (auto const found = given.find(name); found != given.end()) {
    set = text_of(found->at(0));
    replacement = unit_of(found->at(1));
  }
}

TypeAnalyzerOptions type_options_of(json const& given) {
  TypeAnalyzerOptions out;
  read_member(given, "whitespace", out.whitespace, text_of);
  read_member(given, "leading_character", out.leading_character, unit_of);
  read_member(given, "missing_values", out.missing_values, texts_of);
  read_replacement(given, "first_replacement", out.first_replacement_set, out.first_replacement);
  read_replacement(given, "second_replacement", out.second_replacement_set, out.second_replacement);
  read_member(given, "removal", out.removal_set, text_of);
  read_member(given, "embedded_numbers", out.embedded_numbers, flag_of);
  read_member(given, "trim_whitespace", out.trim_whitespace, flag_of);
  read_member(given, "use_missing_values", out.use_missing_values, flag_of);
  read_member(given, "replace", out.replace_characters, flag_of);
  read_member(given, "remove", out.remove_characters, flag_of);
  read_member(given, "datetime_format", out.datetime_format, text_of);
  read_member(given, "exponent", out.exponent_characters, text_of);
  if (auto const limit = given.find("digit_limit"); limit != given.end() && !limit->is_null()) {
    out.decimal_digit_limit = limit->get<std::uint32_t>();
    out.decimal_digit_limit_set = true;
  }
  return out;
}

json part_of(json const& object, char const* const name) {
  return object.value(name, json::object());
}

// Answers.

json fields_out(textio::FieldArray const& array, std::u16string const& text) {
  json out = json::array();
  for (textio::Field const& field : array.fields()) {
    auto const start = field.empty() ? 0 : static_cast<std::size_t>(field.data() - text.data());
    out.push_back({start, start + field.length()});
  }
  return out;
}

json score_out(StrategyValuation const& score, bool const evaluated) {
  return {{"mean_deviation", double_out(score.mean_deviation)},
          {"data_variation", double_out(score.data_variation)},
          {"num_records", score.num_records},
          {"typical_fields", score.typical_fields},
          {"num_variables", score.num_variables},
          {"typed_columns", score.typed_columns},
          {"date_columns", score.date_columns},
          {"numeric_columns", score.numeric_columns},
          {"datetime_columns", score.datetime_columns},
          {"delimiter_columns", score.delimiter_columns},
          {"prior_rank", double_out(score.prior_rank)},
          {"header_lines", evaluated ? count_out(score.header_lines) : json()}};
}

StrategyValuation score_of(json const& given) {
  StrategyValuation out;
  read_member(given, "mean_deviation", out.mean_deviation, double_of);
  read_member(given, "data_variation", out.data_variation, double_of);
  read_member(given, "num_records", out.num_records, count_of);
  read_member(given, "typical_fields", out.typical_fields, byte_of);
  read_member(given, "num_variables", out.num_variables, count_of);
  read_member(given, "typed_columns", out.typed_columns, byte_of);
  read_member(given, "date_columns", out.date_columns, byte_of);
  read_member(given, "numeric_columns", out.numeric_columns, byte_of);
  read_member(given, "datetime_columns", out.datetime_columns, byte_of);
  read_member(given, "delimiter_columns", out.delimiter_columns, byte_of);
  read_member(given, "prior_rank", out.prior_rank, double_of);
  read_member(given, "header_lines", out.header_lines, count_of);
  return out;
}

json strategy_out(GenericStrategy& strategy, std::u16string const& text) {
  bool const evaluated = strategy.is_evaluated();
  // Asking an unscored strategy for its score would compute it: it shows the untouched score of a
  // strategy like it instead.
  StrategyValuation untouched;
  if (!evaluated) {
    untouched.prior_rank = 0;  // the comma fallback: a comma is the first default delimiter
  }
  options const& own = strategy.options();
  return {{"mode", static_cast<unsigned>(strategy.mode())},
          {"delimiters", list_of(own.delimiters)},
          {"whitespace", to_utf8(own.whitespace)},
          {"type_whitespace", to_utf8(strategy.type_options().whitespace)},
          {"column_widths", own.column_widths},
          {"header_lines", count_out(strategy.header_lines())},
          {"detect_header_lines", strategy.detects_header_lines()},
          {"num_variables", count_out(strategy.num_variables())},
          {"blank_delimited", strategy.is_blank_delimited()},
          {"evaluated", evaluated},
          {"types", strategy.has_inspected_columns() ? json(strategy.column_types()) : json()},
          {"record_ends", strategy.field_array()->record_ends()},
          {"fields", fields_out(*strategy.field_array(), text)},
          {"valuation", score_out(evaluated ? strategy.valuation() : untouched, evaluated)}};
}

char const* name_of(textio::detection::Outcome const outcome) {
  constexpr std::array names{"candidate", "line_reader", "comma_fallback"};
  return names.at(static_cast<std::size_t>(outcome));
}

char const* name_of(textio::detection::Reason const reason) {
  constexpr std::array names{"date_columns", "no_records", "no_candidates", "single",
                             "ranked",       "tie",        "none_left"};
  return names.at(static_cast<std::size_t>(reason));
}

json answer_pick(json const& question, std::u16string const& text) {
  options const given = options_of(part_of(question, "options"));
  TypeAnalyzerOptions const type_options = type_options_of(part_of(question, "type_options"));
  textio::detection::StrategySelector selector(given, type_options);
  textio::detection::DetectionReport report;
  auto const result = selector.pick_strategy(
      textio::Field(text), count_of(question.value("records", json(250))), report);
  json candidates = json::array();
  for (auto const& candidate : report.candidates) {
    candidates.push_back(strategy_out(*candidate, text));
  }
  json rejected = json::array();
  for (auto const& sampled : report.sampled) {
    if (!sampled.candidate) {
      rejected.push_back(strategy_out(*sampled.strategy, text));
    }
  }
  return {{"outcome", name_of(report.outcome)},
          {"reason", name_of(report.reason)},
          {"index", report.winner ? json(*report.winner) : json()},
          {"result", strategy_out(*result, text)},
          {"line_reader", strategy_out(*report.line_reader, text)},
          {"candidates", candidates},
          {"rejected", rejected}};
}

std::shared_ptr<GenericStrategy> make_strategy(json const& question, std::string const& kind,
                                               options const& given) {
  TypeAnalyzerOptions const type_options;
  if (kind == "delimited") {
    return std::make_shared<textio::DelimitedStrategy>(
        given, type_options,
        question.contains("delimiters") ? texts_of(question["delimiters"]) : given.delimiters);
  }
  if (kind == "space_aligned") {
    return std::make_shared<textio::SpaceAlignedStrategy>(given, type_options);
  }
  if (kind == "fixed_width") {
    return std::make_shared<textio::FixedWidthStrategy>(
        given, type_options, question.value("widths", std::vector<std::size_t>{}));
  }
  return std::make_shared<textio::LineReaderStrategy>(given, type_options);
}

enums::StrategyMode raw_mode(std::string const& kind) {
  return kind == "raw_delimited"     ? enums::StrategyMode::Delimited
         : kind == "raw_fixed_width" ? enums::StrategyMode::FixedWidth
                                     : enums::StrategyMode::LineReader;
}

template <class Error>
json error_out(Error const& error, char const* const type) {
  return {{"type", type},
          {"record", error.record},
          {"field", error.field},
          {"detail", to_utf8(error.detail)},
          {"token", to_utf8(error.token)}};
}

/// Calls `run`; the parser error that it throws, or null.
template <class Run>
json catch_error(Run const run) {
  try {
    run();
    return {};
  } catch (exception::partial_field_error const& error) {
    return error_out(error, "partial_field_error");
  } catch (exception::empty_line_rule const& error) {
    return error_out(error, "empty_line_rule");
  } catch (exception::leading_delimiters_error const& error) {
    return error_out(error, "leading_delimiters_error");
  } catch (exception::consecutive_delimiters_error const& error) {
    return error_out(error, "consecutive_delimiters_error");
  } catch (exception::trailing_delimiters_error const& error) {
    return error_out(error, "trailing_delimiters_error");
  }
}

json answer_read(json const& question, std::u16string const& text) {
  auto const kind = question.at("strategy").get<std::string>();
  options in_force = options_of(part_of(question, "options"));
  enums::StrategyMode mode = raw_mode(kind);
  if (!kind.starts_with("raw_")) {
    auto const strategy = make_strategy(question, kind, in_force);
    in_force = strategy->options();
    mode = strategy->mode();
  }
  bool const limited = mode == enums::StrategyMode::FixedWidth && !in_force.column_widths.empty();
  textio::reading::ReadLimits const limits{
      .records = count_of(question.value("records", json(250))),
      .lines = count_of(question.value("line_limit", json())),
      .sampling = question.value("sampling", true)};
  textio::FieldArray fields;
  textio::ReadSummary summary;
  json const error = catch_error([&] {
    summary = textio::reading::read_with_mode(
        in_force, mode, text, limits,
        {fields, in_force.whitespace, limited ? in_force.column_widths.size() : unknown_count});
  });
  bool const done = error.is_null();
  return {{"error", error},
          {"record_ends", fields.record_ends()},
          {"fields", fields_out(fields, text)},
          {"consumed", done ? json(summary.units_consumed) : json()},
          {"lines", done ? json(summary.lines_scanned) : json()},
          {"records", done ? json(summary.records_stored) : json()}};
}

json answer_header_lines(json const& question) {
  return {{"value", textio::detection::get_header_lines(
                        question.at("deviations").get<std::vector<std::size_t>>(),
                        question.at("minimum"), question.at("blank_delimited"))}};
}

json answer_rank(json const& question) {
  namespace rules = textio::detection::picker_rules;
  rules::Valuations scores;
  for (json const& score : question.at("valuations")) {
    scores.push_back(score_of(score));
  }
  std::vector<textio::detection::RuleStep> steps;
  auto const value = rules::pick_index(
      rules::build_rules(question.at("ignore_num_variables"), question.at("num_variables"),
                         question.at("detect_header_lines")),
      scores, &steps);
  json trace = json::array();
  for (auto const& step : steps) {
    trace.push_back({step.rule, step.survivors});
  }
  return {{"value", value}, {"trace", trace}};
}

json answer_datetime(json const& question, std::u16string const& text) {
  try {
    return {{"value", ostrel::io::text::typeconversion::is_datetime(
                          textio::Field(text), text_of(question.at("format")))}};
  } catch (std::invalid_argument const&) {
    return {{"value", false}};
  }
}

json answer(json const& question) {
  std::u16string const text = text_of(question.value("text", json("")));
  std::string const op = question.value("op", "pick");
  json out;
  if (op == "pick") {
    json const error = catch_error([&] { out = answer_pick(question, text); });
    if (!error.is_null()) {
      return {{"error", error}};
    }
  } else if (op == "read") {
    out = answer_read(question, text);
  } else if (op == "header_lines") {
    out = answer_header_lines(question);
  } else if (op == "rank") {
    out = answer_rank(question);
  } else if (op == "datetime") {
    out = answer_datetime(question, text);
  } else if (op == "classify") {
    out = {{"value", textio::strategies::classify_field(
                         type_options_of(part_of(question, "type_options")), text)}};
  } else {
    throw std::invalid_argument("unknown op: " + op);
  }
  if (!out.contains("error")) {
    out["error"] = nullptr;
  }
  return out;
}

}  // namespace

int main() try {
  std::ios::sync_with_stdio(false);
  for (std::string line; std::getline(std::cin, line);) {
    json const question = json::parse(line);
    json out = answer(question);
    out["id"] = question.value("id", json());
    std::cout << out.dump() << '\n';
  }
  std::cout.flush();
  return std::cout ? 0 : 1;

} catch (std::exception const& error) {
  std::cerr << "json_driver: " << error.what() << '\n';
  return 1;
}
