// SPDX-License-Identifier: MIT
//
// The story of a decision as data. Numbers that are infinite are null.

#include <nlohmann/json.hpp>

#include "cli/explain_report.hpp"
#include "cli/json_report.hpp"
#include "cli/survey_json.hpp"
#include "text_import/format/utf.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using nlohmann::ordered_json;
using textio::detection::DetectionReport;

std::string_view not_tried_word(NotTried const why) {
  switch (why) {
    case NotTried::DecimalMark:
      return "decimal_mark";
    case NotTried::ThousandsMark:
      return "thousands_mark";
    case NotTried::NeverDelimiter:
      return "never_a_delimiter";
    case NotTried::NotAscii:
      return "not_ascii";
    case NotTried::OutsideMiddle:
      break;
  }
  return "outside_the_middle_lines";
}

/// A strategy with its score.
ordered_json strategy_object(textio::GenericStrategy& strategy) {
  auto const& score = strategy.valuation();
  ordered_json object;
  add_reading(object, strategy);
  object["records"] = score.num_records;
  object["typical_fields"] = score.typical_fields;
  object["num_variables"] = score.num_variables;
  object["mean_deviation"] = score.mean_deviation;
  object["data_variation"] = score.data_variation;
  object["typed_columns"] = score.typed_columns;
  object["numeric_columns"] = score.numeric_columns;
  object["datetime_columns"] = score.datetime_columns;
  object["date_columns"] = score.date_columns;
  object["delimiter_columns"] = score.delimiter_columns;
  object["prior_rank"] = score.prior_rank;
  bool const unknown = score.header_lines == textio::unknown_count;
  object["header_lines"] = unknown ? 0 : score.header_lines;
  object["column_types"] = ordered_json::array();
  for (unsigned char const code : strategy.column_types()) {
    object["column_types"].push_back(type_word(static_cast<textio::enums::ColumnType>(code)));
  }
  return object;
}

ordered_json untried_array(Explanation const& explanation) {
  ordered_json array = ordered_json::array();
  for (UntriedCharacter const& untried : explanation.untried) {
    std::string character;
    append_utf8(character, is_surrogate(untried.character) ? U'\uFFFD' : untried.character);
    array.push_back({{"character", character}, {"why", not_tried_word(untried.why)}});
  }
  return array;
}

ordered_json sampled_array(DetectionReport const& report) {
  ordered_json array = ordered_json::array();
  for (auto const& sampled : report.sampled) {
    ordered_json object = strategy_object(*sampled.strategy);
    object["fate"] = fate_word(sampled.fate);
    object["rejected_by"] = nullptr;
    if (sampled.clause != textio::detection::RejectionClause::None) {
      object["rejected_by"] = clause_word(sampled.clause);
    }
    object["candidate"] = nullptr;
    if (sampled.candidate) {
      object["candidate"] = *sampled.candidate;
    }
    array.push_back(std::move(object));
  }
  return array;
}

ordered_json rules_array(DetectionReport const& report) {
  ordered_json array = ordered_json::array();
  for (auto const& step : report.steps) {
    array.push_back({{"rule", step.rule},
                     {"seen", step.seen},
                     {"measures", step.measures},
                     {"survivors", step.survivors}});
  }
  return array;
}

ordered_json without_winner_object(Explanation const& explanation) {
  if (!explanation.without_winner) {
    return nullptr;
  }
  Finding const& finding = *explanation.without_winner;
  ordered_json object{{"decided", finding.decided}, {"reason", verdict_word(finding.verdict)}};
  object.update(strategy_object(*finding.strategy));
  return object;
}

}  // namespace

ordered_json explain_object(Answer const& answer, Settings const& settings) {
  Explanation const explanation = explain_answer(answer, settings);
  ordered_json object = answer_object(answer, settings);
  object["outcome"] = "given";
  object["line_reader"] = nullptr;
  object["not_tried"] = untried_array(explanation);
  object["sampled"] = ordered_json::array();
  object["rules"] = ordered_json::array();
  object["winner"] = nullptr;
  object["runners_up"] = explanation.runners_up;
  object["margin"] = nullptr;
  object["without_winner"] = without_winner_object(explanation);
  if (explanation.margin) {
    object["margin"] = *explanation.margin;
  }
  if (answer.library->finding.report) {
    DetectionReport const& report = *answer.library->finding.report;
    object["outcome"] = outcome_word(report.outcome);
    object["line_reader"] = strategy_object(*report.line_reader);
    object["sampled"] = sampled_array(report);
    object["rules"] = rules_array(report);
    if (report.winner) {
      object["winner"] = *report.winner;
    }
  }
  if (answer.survey) {
    add_weighing(object, *answer.survey);
  }
  return object;
}

}  // namespace cli
