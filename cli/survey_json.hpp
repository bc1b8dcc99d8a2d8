// SPDX-License-Identifier: MIT
//
// The survey's findings as members of JSON objects. Numbers that do not exist, and marks that are
// not there, are null.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "cli/answer.hpp"

namespace cli {

/// The members that `detect` has beside those of the library's own answer.
void add_survey(nlohmann::ordered_json& object, Answer const& answer);

/// The members that `explain` has in addition: every reading that was weighed, and the outcome.
void add_weighing(nlohmann::ordered_json& object, textimport::SurveyFindings const& findings);

}  // namespace cli
