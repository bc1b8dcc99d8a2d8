// SPDX-License-Identifier: MIT
//
// What it means that a record breaks a rule of the request.
#pragma once

#include <string_view>

#include "text_import/export.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport {

/// What is wrong with the record, as half a sentence: "a delimiter directly follows another one".
[[nodiscard]] TEXT_IMPORT_API std::string_view meaning_of(BrokenRule rule) noexcept;

}  // namespace textimport
