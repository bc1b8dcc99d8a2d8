// SPDX-License-Identifier: MIT
//
// The program text-format: from the arguments to a command, and from what happened to the exit
// code.

#include <csignal>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "cli/arguments.hpp"
#include "cli/commands/commands.hpp"
#include "cli/console.hpp"
#include "cli/help_text.hpp"
#include "cli/usage_error.hpp"
#include "text_import/report/display_text.hpp"

namespace {

/// The command that a first operand seems to be meant for; empty when it is a file.
std::string meant_command(cli::Arguments const& arguments) {
  if (arguments.names_command || arguments.operands.empty()) {
    return {};
  }
  std::string const& first = arguments.operands.front();
  std::error_code ignored;
  return std::filesystem::exists(first, ignored) ? std::string() : cli::near_command(first);
}

int run(std::vector<std::string> words) {
  bool const nothing_typed = words.empty();
  cli::Arguments const arguments = cli::parse_arguments(std::move(words));
  if (arguments.has(cli::Option::Help)) {
    cli::write_output(cli::help_text());
    return cli::exit_code::decided;
  }
  if (arguments.has(cli::Option::Version)) {
    cli::write_output(cli::version_text());
    return cli::exit_code::decided;
  }
  switch (arguments.command) {
    case cli::Command::Generate:
      return cli::generate(arguments);
    case cli::Command::Help:
      return cli::help(arguments);
    case cli::Command::Detect:
    case cli::Command::Explain:
      break;
  }
  if (std::string const meant = meant_command(arguments); !meant.empty()) {
    cli::write_message(fmt::format("{}: there is no such file; did you mean the command \"{}\"?",
                                   textimport::display_bytes(arguments.operands.front()).utf8,
                                   meant));
    return cli::exit_code::failed;
  }
  bool const names_files = !arguments.operands.empty() || arguments.has(cli::Option::FilesFrom);
  if (!names_files && cli::input_is_terminal()) {
    cli::write_message((nothing_typed ? "" : "no file is named\n") + cli::short_help());
    return cli::exit_code::failed;
  }
  return arguments.command == cli::Command::Detect ? cli::detect(arguments)
                                                   : cli::explain(arguments);
}

/// What went wrong, after the name of the program where no path stands.
int fail(std::string const& message) {
  cli::write_message(message);
  return cli::exit_code::failed;
}

}  // namespace

int main(int const count, char** const words) {
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));  // write() reports it, and we end quietly
  try {
    return run(std::vector<std::string>(words + (count > 0 ? 1 : 0), words + count));
  } catch (cli::UsageError const& error) {
    return fail("text-format: " + textimport::display_bytes(error.what()).utf8 +
                "; see text-format --help");
  } catch (cli::OutputError const& error) {
    return fail(error.what());
  } catch (cli::ClosedPipe const&) {
    return cli::exit_code::decided;
  } catch (std::exception const& error) {
    return fail("text-format: " + textimport::display_bytes(error.what()).utf8);
  }
}
