// SPDX-License-Identifier: MIT
#include "cli/commands/commands.hpp"
namespace cli { int explain(Arguments const& arguments) { return detect(arguments); } }
