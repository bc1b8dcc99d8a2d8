// SPDX-License-Identifier: MIT

#include <algorithm>

#include <fmt/format.h>

#include "cli/commands/commands.hpp"
#include "cli/console.hpp"
#include "cli/help_text.hpp"
#include "cli/usage_error.hpp"
#include "text_import/report/display_text.hpp"

namespace cli {

int help(Arguments const& arguments) {
  auto const names = command_names();
  for (std::string const& operand : arguments.operands) {
    if (std::ranges::find(names, operand) == names.end()) {
      throw UsageError(fmt::format("help \"{}\": expected one of {}",
                                   textimport::display_bytes(operand).utf8,
                                   fmt::join(names, ", ")));
    }
  }
  write_output(help_text());
  return exit_code::decided;
}

}  // namespace cli
