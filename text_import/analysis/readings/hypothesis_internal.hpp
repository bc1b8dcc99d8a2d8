// SPDX-License-Identifier: MIT
//
// The questions that a survey asks the library: the same sample under other quotes and comment
// markers, each only where the sample gives reason for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/options.hpp"
#include "text_import/analysis/lines/line_index.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport::analysis {

struct Hypothesis {
  std::string name;  ///< for people: "as given", "quotes are ordinary characters" ...
  textio::parser::options parsing;
};

/// The quote of parsing options, 0 for none.
[[nodiscard]] inline char16_t quote_of(textio::parser::options const& parsing) noexcept {
  return parsing.quote_characters.empty() ? u'\0' : parsing.quote_characters.front();
}

/// The hypotheses for a sample, the caller's own options first.
[[nodiscard]] std::vector<Hypothesis> propose_hypotheses(LineIndex const& lines,
                                                         SurveyOptions const& options);

}  // namespace textimport::analysis
