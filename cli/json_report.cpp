// SPDX-License-Identifier: MIT

#include "cli/json_report.hpp"

#include <algorithm>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/report_parts.hpp"
#include "cli/survey_json.hpp"
#include "text_import/format/utf.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using nlohmann::ordered_json;

/// The path, and where it is no UTF-8 its bytes in hexadecimal too, so that it is not lost.
void add_path(ordered_json& object, std::string const& path) {
  object["path"] = path;  // the writer puts U+FFFD in the place of bad bytes
  if (!from_utf8(path)) {
    std::string bytes;
    for (char const byte : path) {
      bytes += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    }
    object["path_bytes"] = bytes;
  }
}

std::string underscored(std::string_view const name) {
  std::string word(name);
  std::ranges::replace(word, '-', '_');
  return word;
}

void add_types(ordered_json& object, std::vector<textio::enums::ColumnType> const& types) {
  object["num_variables"] = types.size();
  object["column_types"] = ordered_json::array();
  for (auto const type : types) {
    object["column_types"].push_back(type_word(type));
  }
}

/// What the library says by itself.
ordered_json library_object(LibraryAnswer const& answer) {
  ordered_json object;
  add_reading(object, *answer.finding.strategy);
  object["header_lines"] = answer.header_lines;
  add_types(object, answer.column_types);
  object["decided"] = answer.finding.decided;
  object["reason"] = verdict_word(answer.finding.verdict);
  return object;
}

}  // namespace

void add_reading(ordered_json& object, textio::GenericStrategy const& strategy) {
  auto const mode = strategy.mode();
  auto const& options = strategy.options();
  bool const delimited = mode == textio::enums::StrategyMode::Delimited ||
                         mode == textio::enums::StrategyMode::SpaceAligned;
  object["layout"] = layout_word(mode);
  object["delimiters"] = ordered_json::array();
  object["column_widths"] = ordered_json::array();
  if (delimited) {
    for (std::u16string const& delimiter : options.delimiters) {
      object["delimiters"].push_back(to_utf8(delimiter));
    }
  } else if (mode == textio::enums::StrategyMode::FixedWidth) {
    object["column_widths"] = options.column_widths;
  }
}

ordered_json answer_object(Answer const& answer, Settings const& settings) {
  auto const& findings = answer.text.findings();
  ordered_json object{{"schema", json_schema}};
  add_path(object, answer.path);
  object["decided"] = answer.decided;
  object["reason"] = verdict_word(answer.verdict);
  add_reading(object, *answer.strategy);
  if (!answer.survey) {
    object["header_lines"] = answer.library->header_lines;
  }
  add_types(object, answer.column_types);
  auto const ending = line_ending_word(findings.line_endings);
  object["line_ending"] = ending.empty() ? ordered_json() : ordered_json(ending);
  object["encoding"] = findings.encoding.name;
  object["encoding_reason"] = textimport::name_of(findings.encoding.reason);
  object["compression"] = findings.compression;
  object["records_sampled"] = records_sampled(answer);
  object["given"] = ordered_json::array();
  for (Option const option : settings.given) {
    object["given"].push_back(underscored(spec(option).name));
  }
  object["violation"] = nullptr;
  if (answer.violation) {
    object["violation"] = {{"line", answer.violation->line},
                           {"message", answer.violation->message}};
  }
  object["warnings"] = notes(answer);
  if (answer.survey) {
    add_survey(object, answer);
    object["library"] = library_object(*answer.library);
  }
  return object;
}

ordered_json error_object(std::string const& path, textimport::ImportError const& error) {
  ordered_json object{{"schema", json_schema}};
  add_path(object, path);
  object["decided"] = false;
  object["error"] = textimport::name_of(error.kind());
  object["message"] = error.message();
  return object;
}

std::string json_line(ordered_json const& object) {
  constexpr int on_one_line = -1;
  constexpr bool only_ascii = true;
  return object.dump(on_one_line, ' ', only_ascii, ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace cli
