// SPDX-License-Identifier: MIT
//
// What a reader should know of an opened text, in sentences.
#pragma once

#include <string>
#include <vector>

#include "text_import/export.hpp"
#include "text_import/source/text_source.hpp"

namespace textimport {

/// One sentence each, without a full stop, for a sample that is a piece of one line, for replaced
/// bytes, for NUL characters, and then the warnings. What an encoding was guessed from is not among
/// them: EncodingFinding says it.
[[nodiscard]] TEXT_IMPORT_API std::vector<std::string> notes(TextFindings const& findings);

}  // namespace textimport
