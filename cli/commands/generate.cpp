// SPDX-License-Identifier: MIT
#include "cli/commands/commands.hpp"

namespace cli {
int generate(Arguments const&) {
  return 2;
}
}  // namespace cli
