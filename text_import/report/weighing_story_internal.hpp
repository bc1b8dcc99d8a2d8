// SPDX-License-Identifier: MIT
//
// How the readings of a text were weighed, for people.
#pragma once

#include <string>

#include "text_import/format/evidence.hpp"
#include "text_import/report/style.hpp"

namespace textimport::reporting {

/// What was assumed, every reading that was weighed, and the rules at which they fell.
[[nodiscard]] std::string weighing_story(Evidence const& evidence, ReportStyle const& style);

}  // namespace textimport::reporting
