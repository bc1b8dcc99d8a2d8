// SPDX-License-Identifier: MIT
//
// The man page, made from the table of commands and options.
#pragma once

#include <string>

namespace cli {

[[nodiscard]] std::string man_page();

}  // namespace cli
