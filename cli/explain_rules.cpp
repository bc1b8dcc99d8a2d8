// SPDX-License-Identifier: MIT

#include "cli/explain_rules.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/lines.hpp"
#include "cli/words.hpp"

namespace cli {

namespace {

using textio::detection::DetectionReport;
using textio::detection::RuleStep;

/// Positions in the list as a reader counts them, runs taken together: "#1, #3-7".
std::string position_ranges(std::vector<std::size_t> const& positions) {
  std::vector<std::string> ranges;
  for (std::size_t start = 0; start < positions.size();) {
    std::size_t end = start + 1;
    while (end < positions.size() && positions[end] == positions[end - 1] + 1) {
      ++end;
    }
    std::size_t const first = positions[start] + 1;
    std::size_t const last = positions[end - 1] + 1;
    ranges.push_back(first == last ? fmt::format("#{}", first)
                                   : fmt::format("#{}-{}", first, last));
    start = end;
  }
  return fmt::format("{}", fmt::join(ranges, ", "));
}

/// Readings grouped by their numbers: "0: #2, #4; 1: #3".
std::string grouped_by_number(std::vector<NumberedReading> readings) {
  std::ranges::stable_sort(readings, {}, &NumberedReading::number);
  std::vector<std::string> groups;
  for (std::size_t start = 0; start < readings.size();) {
    std::string const number = number_text(readings[start].number);
    std::vector<std::size_t> positions;
    while (start < readings.size() && number_text(readings[start].number) == number) {
      positions.push_back(readings[start++].position);
    }
    groups.push_back(fmt::format("{}: {}", number, position_ranges(positions)));
  }
  return fmt::format("{}", fmt::join(groups, "; "));
}

/// Who was kept or fell at a rule, each with its number.
std::string with_numbers(DetectionReport const& report, RuleStep const& rule, bool const kept) {
  std::vector<NumberedReading> readings;
  for (std::size_t i = 0; i < rule.seen.size(); ++i) {
    std::size_t const candidate = rule.seen[i];
    if (std::ranges::binary_search(rule.survivors, candidate) == kept) {
      readings.push_back(
          {candidate, reading_name(*report.candidates[candidate]), rule.measures[i]});
    }
  }
  return numbered_list(std::move(readings));
}

std::string_view rule_text(std::string_view const rule) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 7> texts{{
      {"numvariables", "the number of columns that is expected"},
      {"dates", "any columns of dates and times"},
      {"variation", "least irregular, small differences aside"},
      {"class_value",
       "most telling column types: a date with time counts 25, a date or duration "
       "10, a number 3, another type 1, a lone delimiter -1"},
      {"header_lines", "fewest header lines, if the records are all alike"},
      {"non_empty", "largest share of columns with values"},
      {"priors_rank",
       "most usual delimiter: comma 0, tab 1, semicolon 2, space 3, runs of blanks "
       "3.5"},
  }};
  auto const* const known = std::ranges::find(texts, rule, &decltype(texts)::value_type::first);
  return known == texts.end() ? rule : known->second;
}

}  // namespace

std::string number_text(double const number) {
  constexpr double largest_real = 1e15;  // what stands above marks the end of a list
  return std::isfinite(number) && number < largest_real ? fmt::format("{:.4g}", number) : "none";
}

std::string numbered_list(std::vector<NumberedReading> readings) {
  constexpr std::size_t few = 6;
  if (readings.size() > few) {
    return grouped_by_number(std::move(readings));
  }
  std::vector<std::string> names;
  names.reserve(readings.size());
  for (NumberedReading const& reading : readings) {
    names.push_back(
        fmt::format("#{} {}: {}", reading.position + 1, reading.name, number_text(reading.number)));
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string rule_heading(std::size_t const number, std::string_view const rule,
                         std::string_view const meaning, std::size_t const width) {
  std::string const start = fmt::format("  {}. {}: ", number, rule);
  return start + wrapped(meaning, start.size(), width);
}

std::string heading(std::string_view const text, Colors const& colors) {
  return fmt::format("\n{}{}{}\n", colors.heading, text, colors.reset);
}

std::string paragraph(std::string_view const text, std::size_t const width,
                      std::size_t const left) {
  return std::string(left, ' ') + wrapped(text, left, width);
}

std::string rules_text(DetectionReport const& report, std::size_t const width) {
  std::string text;
  std::size_t number = 0;
  for (RuleStep const& rule : report.steps) {
    text += rule_heading(++number, rule.rule, rule_text(rule.rule), width);
    bool const none_fell = rule.survivors.size() == rule.seen.size();
    text += paragraph(fmt::format("{} of {} stay: {}", rule.survivors.size(), rule.seen.size(),
                                  with_numbers(report, rule, true)),
                      width);
    if (!none_fell) {
      text += paragraph("out: " + with_numbers(report, rule, false), width);
    }
  }
  return text;
}

}  // namespace cli
