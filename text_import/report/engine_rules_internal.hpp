// SPDX-License-Identifier: MIT
//
// The engine's rules in words.
#pragma once

#include <string_view>

namespace textimport::reporting {

/// What is to be said of a rule by which the engine ranks readings.
struct EngineRuleText {
  std::string_view name;
  std::string_view meaning;     ///< what it keeps, by which number
  std::string_view preference;  ///< why what it keeps alone is the answer, as half a sentence
};

/// The texts of a rule by its name; its name in place of both for one that is not known.
[[nodiscard]] EngineRuleText engine_rule(std::string_view name);

}  // namespace textimport::reporting
