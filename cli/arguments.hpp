// SPDX-License-Identifier: MIT
//
// The command line as it was typed, cut into command, options and operands.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "cli/option_table.hpp"

namespace cli {

struct Arguments {
  Command command = Command::Detect;
  bool names_command = false;  ///< the command was typed
  /// File names, byte for byte; for `generate` what to generate.
  std::vector<std::string> operands;
  /// The values of each option that was given, in the order given; a flag has "true".
  std::map<Option, std::vector<std::string>> given;

  [[nodiscard]] bool has(Option const option) const { return given.contains(option); }

  /// The first value of an option that is given.
  [[nodiscard]] std::string const& value(Option const option) const {
    return given.at(option).front();
  }
};

/// Cuts up the words that stand behind the program's name. The first one may name the command;
/// `detect` is meant when it does not. Values are not looked at yet.
/// Throws UsageError for an unknown option, a missing value, or an option given twice that may
/// stand only once.
[[nodiscard]] Arguments parse_arguments(std::vector<std::string> words);

/// The command whose name is so near to the word that it may be meant; empty when none is.
[[nodiscard]] std::string near_command(std::string_view word);

}  // namespace cli
