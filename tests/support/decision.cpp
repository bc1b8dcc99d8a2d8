// SPDX-License-Identifier: MIT
#include "tests/support/decision.hpp"

#include <array>
#include <bit>
#include <cstdint>

#include "tests/support/text.hpp"

namespace support {

namespace {

using textio::GenericStrategy;
using textio::detection::CandidateFate;
using textio::detection::DetectionReport;
using textio::detection::SampledStrategy;

template <class Enum, std::size_t Size>
std::string name_of(std::array<char const*, Size> const& names, Enum const value) {
  return names.at(static_cast<std::size_t>(value));
}

std::string show_fate(SampledStrategy const& sampled) {
  switch (sampled.fate) {
    case CandidateFate::Accepted:
      return "#" + std::to_string(sampled.candidate.value());
    case CandidateFate::Rejected:
      return show_rejection(sampled.clause);
    case CandidateFate::LessTyped:
      return "less typed";
    case CandidateFate::ReplacedByFixedWidth:
      return "replaced";
  }
  return "?";
}

std::string show_line(std::string const& key, std::string const& value) {
  return key + (value.empty() ? ":" : ": ") + value + "\n";
}

}  // namespace

std::string show_layout(GenericStrategy const& strategy) {
  auto const mode = strategy.mode();
  std::string text =
      name_of(std::array{"delimited", "space-aligned", "fixed-width", "lines"}, mode);
  if (mode == textio::enums::StrategyMode::FixedWidth) {
    text += " " + show(strategy.options().column_widths);
  } else if (mode == textio::enums::StrategyMode::Delimited) {
    for (std::u16string const& delimiter : strategy.options().delimiters) {
      text += " <" + show(delimiter) + ">";
    }
  }
  return text;
}

std::string show_rejection(textio::detection::RejectionClause const clause) {
  return name_of(std::array{"none", "uncommon delimiter", "one field", "irregular record",
                            "irregular", "one field a record"},
                 clause);
}

std::string show_sampled(DetectionReport const& report) {
  std::string text;
  for (SampledStrategy const& sampled : report.sampled) {
    text += (text.empty() ? "" : ", ") + show_layout(*sampled.strategy) + " " + show_fate(sampled);
  }
  return text;
}

std::string show_rules(DetectionReport const& report) {
  std::string text;
  for (textio::detection::RuleStep const& step : report.steps) {
    text += (text.empty() ? "" : ", ") + std::string(step.rule) + " " + show(step.survivors);
  }
  return text;
}

std::string show_reason(DetectionReport const& report) {
  return name_of(
      std::array{"dates", "no records", "no candidates", "single", "ranked", "tie", "none left"},
      report.reason);
}

std::string show_types(GenericStrategy const& strategy) {
  auto const& codes = strategy.column_types();
  return show(std::vector<std::size_t>(codes.begin(), codes.end()));
}

std::string show_decision(GenericStrategy const& answer, DetectionReport const& report) {
  textio::FieldArray const& fields = *answer.field_array();
  return show_line("layout", show_layout(answer)) +                      //
         show_line("reason", show_reason(report)) +                      //
         show_line("header lines", show_count(answer.header_lines())) +  //
         show_line("variables", show_count(answer.num_variables())) +    //
         show_line("types", show_types(answer)) +                        //
         show_line("records", show_count(fields.num_records())) +        //
         show_line("fields", show_count(fields.fields().size())) +       //
         show_line("sampled", show_sampled(report)) +                    //
         show_line("rules", show_rules(report));
}

bool same_score(textio::StrategyValuation const& a, textio::StrategyValuation const& b) {
  auto const same = [](double const x, double const y) {
    return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
  };
  return same(a.mean_deviation, b.mean_deviation) && same(a.data_variation, b.data_variation) &&
         same(a.prior_rank, b.prior_rank) && a.num_records == b.num_records &&
         a.typical_fields == b.typical_fields && a.num_variables == b.num_variables &&
         a.typed_columns == b.typed_columns && a.date_columns == b.date_columns &&
         a.numeric_columns == b.numeric_columns && a.datetime_columns == b.datetime_columns &&
         a.delimiter_columns == b.delimiter_columns && a.header_lines == b.header_lines;
}

}  // namespace support
