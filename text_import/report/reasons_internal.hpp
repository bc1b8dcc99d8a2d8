// SPDX-License-Identifier: MIT
//
// Why the answer is what it is, in a sentence.
#pragma once

#include <string>

#include "text_import/analysis/analysis.hpp"

namespace textimport::reporting {

/// Of the answer.
[[nodiscard]] std::string why(Analysis const& analysis);

/// Of the engine's own decision.
[[nodiscard]] std::string why(textio::detection::DetectionReport const& engine);

}  // namespace textimport::reporting
