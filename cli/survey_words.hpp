// SPDX-License-Identifier: MIT
//
// What the survey says in numbers and constants, in words for people.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "text_import/survey/survey.hpp"

namespace cli {

/// How a candidate reads a line, in a few words: "comma", "runs of blanks", "fixed widths".
[[nodiscard]] std::string candidate_name(textimport::SurveyCandidate const& candidate);

/// The same with its number of columns: "comma, 3 columns".
[[nodiscard]] std::string candidate_text(textimport::SurveyCandidate const& candidate);

/// A share in per cent, which is 100 only for all of it: "97 %".
[[nodiscard]] std::string share_text(double share);

/// A confidence in words: "nearly certain".
[[nodiscard]] std::string_view confidence_word(double confidence);

/// What a rule of the survey demands, and which number it looks at.
struct SurveyRuleText {
  std::string_view rule;
  std::string_view meaning;
};

/// The rules in their order.
[[nodiscard]] std::span<SurveyRuleText const> survey_rules();

/// Why a hypothesis is tried; empty when nothing is known about it.
[[nodiscard]] std::string hypothesis_reason(std::string_view hypothesis);

}  // namespace cli
