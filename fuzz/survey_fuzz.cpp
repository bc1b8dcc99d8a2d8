// SPDX-License-Identifier: MIT
//
// Whole surveys, with the caller's options and the parts that are given drawn from the input.
#include <algorithm>
#include <string>

#include <fmt/format.h>

#include "fuzz/input.hpp"
#include "fuzz/properties.hpp"
#include "text_import/survey/survey.hpp"

namespace {

using fuzz::Placed;
using fuzz::require;
using textimport::SurveyFindings;
using textimport::SurveyOptions;

SurveyOptions draw_survey_options(fuzz::Input& in) {
  SurveyOptions options;
  if (in.flag()) {
    options.parsing = fuzz::draw_options(in);
    options.types = fuzz::draw_type_options(in);
  }
  unsigned const given = in.byte();
  options.given = {(given & 1U) != 0,  (given & 2U) != 0,  (given & 4U) != 0, (given & 8U) != 0,
                   (given & 16U) != 0, (given & 32U) != 0, (given & 64U) != 0};
  options.layout = in.choice(textimport::Layout::Lines);
  options.records = fuzz::draw_count(in);
  options.goes_on = in.flag();
  options.encoding = std::array{"", "UTF-8", "UTF-16LE", "GB18030"}.at(in.below(4));
  return options;
}

bool is_share(double const value) {
  return value >= 0 && value <= 1;
}

void require_sound(SurveyFindings const& findings, std::u16string_view const text) {
  require(is_share(findings.confidence) && is_share(findings.runner_up_confidence),
          "confidence is a share");
  require(!findings.reason.empty(), "there is a reason");
  require(findings.strategy != nullptr, "there is a strategy");
  fuzz::require_sound(*findings.strategy->field_array(), text);
  for (auto const& candidate : findings.candidates) {
    require(is_share(candidate.coverage) && is_share(candidate.soundness), "measures are shares");
  }
  std::size_t const end = findings.candidates.size();
  require(findings.winner.value_or(0) <= end && findings.runner_up.value_or(0) <= end,
          "the winner is among the candidates");
  require(!findings.winner || findings.candidates[*findings.winner].fell_at.empty(),
          "the winner stands");
  require(std::ranges::is_sorted(findings.lines, {}, &textimport::NotedLine::line),
          "lines ascend");
  require(findings.lines.empty() || findings.lines.back().line <= text.size(), "lines exist");
  require(findings.data_starts_at <= findings.data_ends_at.value_or(text.size()),
          "data end behind their start");
  for (auto const& column : findings.columns) {
    require(column.fitting <= column.values, "values that fit are values");
    require(!column.characters || column.characters->begin <= column.characters->end,
            "a column ends behind its start");
  }
}

/// All that is said, as text.
std::string show(SurveyFindings const& findings) {
  std::string shown = fmt::format("{} {} {} {} {} {}", name_of(findings.layout), findings.decided,
                                  findings.confidence, findings.reason, findings.num_columns,
                                  findings.data_starts_at);
  for (auto const& line : findings.lines) {
    shown += fmt::format(" {}:{}", line.line, name_of(line.role));
  }
  for (auto const& column : findings.columns) {
    shown += fmt::format(" {} {} {} {}", name_of(column.type), column.values, column.fitting,
                         column.longest_value);
    shown.append(column.name.begin(), column.name.end());
  }
  for (auto const& candidate : findings.candidates) {
    shown += fmt::format(" {} {} {} {}", candidate.hypothesis, candidate.coverage,
                         candidate.soundness, candidate.fell_at);
  }
  return shown;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  fuzz::Input in(data, size);
  SurveyOptions const options = draw_survey_options(in);
  std::u16string const text = in.text();
  std::u16string const head(fuzz::before_end_mark(text));
  Placed const sample(head);
  SurveyFindings const findings = textimport::survey_text(sample.field(), options);
  require_sound(findings, sample.view());
  std::string const shown = show(findings);
  require(show(textimport::survey_text(sample.field(), options)) == shown, "the same answer again");
  Placed const longer(head + textio::end_mark + u"1,2;3\n\"");
  require(show(textimport::survey_text(longer.field(), options)) == shown,
          "text behind the end mark changes nothing");
  return 0;
}
