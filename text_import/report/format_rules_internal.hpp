// SPDX-License-Identifier: MIT
//
// The rules of a layout that are not the usual ones, in words.
#pragma once

#include <string>

#include "text_import/format/format.hpp"

namespace textimport::reporting {

/// "a run of delimiters counts as one; empty lines are records"; empty when all is as usual. Rules
/// that are set to Error are as usual: what they forbid is reported when it is met.
[[nodiscard]] std::string rules_text(LayoutFormat const& layout);

}  // namespace textimport::reporting
