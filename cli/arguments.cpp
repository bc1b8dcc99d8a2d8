// SPDX-License-Identifier: MIT
//
// The one source that knows the library that parses command lines. It only cuts words: each
// command is an application of its own, because nested ones would take a file that is called like
// a command for that command, and help is made from the table.

#include "cli/arguments.hpp"

#include <algorithm>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include "cli/usage_error.hpp"
#include "text_import/format/edit_distance.hpp"

namespace cli {

namespace {

/// The option whose name is nearest to a wrong one, as " (did you mean ...?)", or nothing.
std::string suggestion(std::string_view word) {
  word = word.substr(0, word.find('='));
  std::string best;
  std::size_t best_distance = 4;  // further away than that is no typing mistake
  for (OptionSpec const& candidate : options()) {
    std::string const name = flag(candidate.option);
    std::size_t const distance = textimport::edit_distance(word, name);
    if (distance < best_distance && distance < name.size() / 2) {
      best = name;
      best_distance = distance;
    }
  }
  return best.empty() ? best : fmt::format(" (did you mean {}?)", best);
}

std::string cli_name(OptionSpec const& spec) {
  std::string name = "--" + std::string(spec.name);
  return spec.letter == 0 ? name : fmt::format("-{},{}", spec.letter, name);
}

/// Whether some word may be the option: its long name, or one letter among others.
bool is_mentioned(OptionSpec const& row, std::vector<std::string> const& words) {
  return std::ranges::any_of(words, [&](std::string_view const word) {
    bool const is_long = word.starts_with("--");
    return is_long ? word.substr(2).starts_with(row.name)
                   : word.starts_with('-') && row.letter != 0 &&
                         word.find(row.letter) != std::string_view::npos;
  });
}

/// Each option is compared with all that were added before it, so only those that stand among the
/// words are: the others could not be met.
void add_options(CLI::App& app, std::vector<std::string> const& words, Arguments& arguments) {
  for (OptionSpec const& row : options()) {
    if (!is_mentioned(row, words)) {
      continue;
    }
    auto const store = [&arguments, option = row.option](CLI::results_t const& values) {
      arguments.given[option] = values;
      return true;
    };
    CLI::Option* const option = app.add_option(cli_name(row), store);
    // Exactly one value each time, so that a file name behind it stays a file name.
    option->expected(takes_value(row) ? 1 : 0)->allow_extra_args(false);
    option->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }
}

/// The operands among the words that were no option or value of one. Up to the first "--", which
/// the library leaves among them, a word with a dash is a wrong option.
std::vector<std::string> operands(std::vector<std::string> words) {
  auto const mark = std::ranges::find(words, "--");
  for (auto word = words.begin(); word != mark; ++word) {
    if (word->size() > 1 && word->front() == '-') {
      throw UsageError(fmt::format("unknown option {}{}", *word, suggestion(*word)));
    }
  }
  if (mark != words.end()) {
    words.erase(mark);
  }
  return words;
}

/// The library takes the next word for the value of "--name="; an empty value is meant.
void keep_empty_values(std::vector<std::string>& words) {
  for (auto word = words.begin(); word != words.end() && *word != "--"; ++word) {
    if (word->size() > 3 && word->starts_with("--") && word->find('=') == word->size() - 1) {
      word->pop_back();
      word = words.insert(word + 1, std::string());
    }
  }
}

/// What the table says beyond the number of values each time.
void check_counts(Arguments const& arguments) {
  for (auto const& [option, values] : arguments.given) {
    OptionSpec const& row = spec(option);
    if (takes_value(row) && !row.repeatable && values.size() > 1) {
      throw UsageError(fmt::format("{} is given {} times, as {} and {}: give it once", flag(option),
                                   values.size(), values[0], values[1]));
    }
    if (!takes_value(row) && std::ranges::any_of(values, [](auto& v) { return v != "true"; })) {
      throw UsageError(fmt::format("{} takes no value", flag(option)));
    }
  }
}

/// Takes the command's name off the words, if there is one.
void take_command(std::vector<std::string>& words, Arguments& arguments) {
  if (words.empty()) {
    return;
  }
  auto const found = std::ranges::find(commands(), words.front(), &CommandSpec::name);
  if (found != commands().end()) {
    arguments.command = found->command;
    arguments.names_command = true;
    words.erase(words.begin());
  }
}

}  // namespace

Arguments parse_arguments(std::vector<std::string> words) {
  Arguments arguments;
  take_command(words, arguments);
  CLI::App app;
  app.set_help_flag();
  add_options(app, words, arguments);
  keep_empty_values(words);
  // Not a positional option, whose values in square brackets would be cut up.
  app.allow_extras();
  std::ranges::reverse(words);  // the library takes them from the back
  try {
    app.parse(std::move(words));
  } catch (CLI::ArgumentMismatch const& error) {  // "--name: ...", for a value that is not there
    std::string_view const text = error.what();
    throw UsageError(fmt::format("{} needs a value", text.substr(0, text.find(':'))));
  } catch (CLI::ParseError const& error) {
    throw UsageError(error.what());
  }
  arguments.operands = operands(app.remaining());
  check_counts(arguments);
  return arguments;
}

std::string near_command(std::string_view const word) {
  auto const is_near = [&](CommandSpec const& command) {
    return textimport::edit_distance(word, command.name) <
           std::min<std::size_t>(3, command.name.size() / 2);
  };
  auto const found = std::ranges::find_if(commands(), is_near);
  return found == commands().end() ? std::string() : std::string(found->name);
}

}  // namespace cli
