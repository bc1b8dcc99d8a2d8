// SPDX-License-Identifier: MIT
//
// The answer is the survey's, or the library's own where the user asks for that.

#include "cli/answer.hpp"

#include <algorithm>
#include <utility>

#include "cli/rule_check.hpp"
#include "cli/survey_answer.hpp"
#include "text_format_detection/model/field_array.hpp"

namespace cli {

namespace {

/// The sample of an opened text. Where the user says what ends a record, a text that goes on is
/// cut behind the last of these ends instead.
std::u16string_view sample_of(textimport::TextSource const& text, Settings const& settings) {
  std::u16string_view const sample = text.sample().view();
  if (!text.findings().goes_on || !settings.is_given(Option::LineEnding)) {
    return sample;
  }
  std::size_t end = 0;
  for (std::u16string const& ending : settings.parsing.line_endings) {
    auto const last = sample.rfind(ending);
    end = std::max(end, last == std::u16string_view::npos ? 0 : last + ending.size());
  }
  return end == 0 ? sample : sample.substr(0, end);
}

void take_library_answer(Answer& answer) {
  LibraryAnswer const& library = *answer.library;
  answer.strategy = library.finding.strategy;
  answer.verdict = library.finding.verdict;
  answer.decided = library.finding.decided;
  answer.column_types = library.column_types;
  answer.data_begin = header_length(library, answer.sample);
  answer.data_end = answer.sample.size();
}

}  // namespace

Answer find_answer(std::string const& path, Settings const& settings) {
  auto text = textimport::TextSource::open(path, settings.opening);
  std::u16string_view const sample = sample_of(text, settings);
  Answer answer{.path = path, .text = std::move(text), .sample = sample};
  if (settings.library_only || settings.shows_library) {
    answer.library = ask_library(sample, settings);
  }
  if (settings.library_only) {
    take_library_answer(answer);
  } else {
    take_survey(answer, settings);
  }
  answer.violation = find_violation(answer, settings);
  return answer;
}

std::size_t records_sampled(Answer const& answer) {
  return answer.strategy->field_array()->num_records();
}

}  // namespace cli
