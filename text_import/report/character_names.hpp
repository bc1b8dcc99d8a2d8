// SPDX-License-Identifier: MIT
//
// Characters and delimiters by their names.
#pragma once

#include <string>
#include <string_view>

#include "text_import/export.hpp"

namespace textimport {

/// A delimiter by its name, "comma"; one without a name in quotes, cut when it is long.
[[nodiscard]] TEXT_IMPORT_API std::string delimiter_name(std::u16string_view delimiter);

/// The same for many of them: "commas", "equals signs".
[[nodiscard]] TEXT_IMPORT_API std::string delimiter_names(std::u16string_view delimiter);

}  // namespace textimport
