// SPDX-License-Identifier: MIT
//
// What no Format can say although each of its members could: nothing can be read by it.
#pragma once

#include <string>

#include "text_import/format/format.hpp"

namespace textimport {

/// The place, as a JSON pointer, and a sentence on the first impossible value; empty when there is
/// none.
[[nodiscard]] std::string impossible_value(Format const& format);

}  // namespace textimport
