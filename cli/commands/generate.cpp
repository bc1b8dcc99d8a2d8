// SPDX-License-Identifier: MIT

#include <string>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/commands/commands.hpp"
#include "cli/completions.hpp"
#include "cli/console.hpp"
#include "cli/man_page.hpp"
#include "cli/option_table.hpp"
#include "cli/usage_error.hpp"
#include "text_import/report/display_text.hpp"

namespace cli {

namespace {

using nlohmann::ordered_json;

// The number grows when a member is removed or changes its meaning.
constexpr int table_schema = 1;

std::string table_as_json() {
  ordered_json object{{"schema", table_schema},
                      {"commands", ordered_json::array()},
                      {"options", ordered_json::array()}};
  for (CommandSpec const& command : commands()) {
    object["commands"].push_back(
        {{"name", command.name}, {"operands", command.operands}, {"help", command.help}});
  }
  for (OptionSpec const& row : options()) {
    object["options"].push_back({{"name", flag(row.option)},
                                 {"letter", row.letter == 0 ? "" : fmt::format("-{}", row.letter)},
                                 {"value", row.value},
                                 {"choices", choices(row)},
                                 {"repeatable", row.repeatable},
                                 {"help", row.help}});
  }
  return object.dump() + "\n";
}

std::string generated(std::string_view const kind) {
  if (kind == "man") {
    return man_page();
  }
  if (kind == "bash") {
    return bash_completion();
  }
  if (kind == "zsh") {
    return zsh_completion();
  }
  if (kind == "fish") {
    return fish_completion();
  }
  if (kind == "json") {
    return table_as_json();
  }
  throw UsageError(fmt::format("generate \"{}\": expected one of {}",
                               textimport::display_bytes(kind).utf8,
                               fmt::join(generate_kinds(), ", ")));
}

}  // namespace

int generate(Arguments const& arguments) {
  if (arguments.operands.size() != 1) {
    throw UsageError(fmt::format("generate: name one of {}", fmt::join(generate_kinds(), ", ")));
  }
  if (!arguments.given.empty()) {
    throw UsageError(
        fmt::format("generate has no option {}", flag(arguments.given.begin()->first)));
  }
  write_output(generated(arguments.operands.front()));
  return exit_code::decided;
}

}  // namespace cli
