// SPDX-License-Identifier: MIT

#include "cli/completions.hpp"

#include <fmt/format.h>

#include "cli/option_table.hpp"

namespace cli {

namespace {

/// The names of the commands, apart by blanks.
std::string command_words() {
  return fmt::format("{}", fmt::join(command_names(), " "));
}

/// The option by both of its names, with `between` them.
std::string both_names(OptionSpec const& row, std::string_view const between) {
  return row.letter == 0 ? flag(row.option)
                         : fmt::format("-{}{}{}", row.letter, between, flag(row.option));
}

bool takes_file(OptionSpec const& row) {
  return row.value == "FILE";
}

/// Each of `special` behind a backslash. A quote that is not among them is left and entered again
/// around a quoted one, for a shell that knows no escapes between single quotes.
std::string escaped(std::string_view const text, std::string_view const special) {
  std::string result;
  for (char const c : text) {
    if (special.find(c) != std::string_view::npos) {
      result += fmt::format("\\{}", c);
    } else if (c == '\'') {
      result += R"('\'')";
    } else {
      result += c;
    }
  }
  return result;
}

/// One branch of the case statement on the word in front.
std::string bash_branch(OptionSpec const& row) {
  std::string const words =
      takes_file(row) ? std::string("-f") : fmt::format("-W '{}'", fmt::join(choices(row), " "));
  return fmt::format("    {}) mapfile -t COMPREPLY < <(compgen {} -- \"$word\"); return ;;\n",
                     both_names(row, "|"), words);
}

}  // namespace

std::string bash_completion() {
  std::string branches;
  std::string flags;
  for (OptionSpec const& row : options()) {
    branches += takes_value(row) ? bash_branch(row) : "";
    flags += (flags.empty() ? "" : " ") + both_names(row, " ");
  }
  return fmt::format(R"(# Completion of text-format for bash; made by: text-format generate bash
_text_format() {{
  local word=${{COMP_WORDS[COMP_CWORD]}} front=${{COMP_WORDS[COMP_CWORD-1]}}
  # --name=value comes as three words
  if [[ $word == = ]]; then
    word=
  elif [[ $front == = ]]; then
    front=${{COMP_WORDS[COMP_CWORD-2]}}
  fi
  case $front in
{0}  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '{1}' -- "$word")
  elif [[ ${{COMP_WORDS[1]}} == generate && $COMP_CWORD -eq 2 ]]; then
    mapfile -t COMPREPLY < <(compgen -W '{2}' -- "$word")
  elif [[ ${{COMP_WORDS[1]}} == help && $COMP_CWORD -eq 2 ]]; then
    mapfile -t COMPREPLY < <(compgen -W '{3}' -- "$word")
  elif [[ $COMP_CWORD -eq 1 ]]; then
    mapfile -t COMPREPLY < <(compgen -W '{3}' -- "$word"; compgen -f -- "$word")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}}
complete -o filenames -F _text_format text-format
)",
                     branches, flags, fmt::join(generate_kinds(), " "), command_words());
}

std::string zsh_completion() {
  std::string specs;
  for (OptionSpec const& row : options()) {
    constexpr std::string_view special = R"(\:[])";
    std::string const help = escaped(first_sentence(row.help), special);
    std::string action;
    if (takes_file(row)) {
      action = ":file:_files";
    } else if (!row.choices.empty()) {
      action = fmt::format(":word:({})", fmt::join(choices(row), " "));
    } else if (takes_value(row)) {
      action = fmt::format(":{}: ", row.value);
    }
    std::string const value = takes_value(row) ? "=" : "";
    std::string const star = row.repeatable ? "*" : "";
    specs += fmt::format("  '{}{}{}[{}]{}' \\\n", star, flag(row.option), value, help, action);
    if (row.letter != 0) {
      specs += fmt::format("  '{}-{}{}[{}]{}' \\\n", star, row.letter, takes_value(row) ? "+" : "",
                           help, action);
    }
  }
  return fmt::format(R"(#compdef text-format
# Completion of text-format for zsh; made by: text-format generate zsh
_text_format_first() {{
  _alternative 'commands:command:({0})' 'files:file:_files'
}}
_text_format_rest() {{
  if [[ $words[2] == generate ]]; then
    compadd {1}
  elif [[ $words[2] == help ]]; then
    compadd {0}
  else
    _files
  fi
}}
_arguments -s \
{2}  '1:command or file:_text_format_first' \
  '*:file:_text_format_rest'
)",
                     command_words(), fmt::join(generate_kinds(), " "), specs);
}

std::string fish_completion() {
  std::string text = "# Completion of text-format for fish; made by: text-format generate fish\n";
  for (CommandSpec const& command : commands()) {
    text += fmt::format("complete -c text-format -n __fish_use_subcommand -a {} -d '{}'\n",
                        command.name, escaped(first_sentence(command.help), R"(\')"));
  }
  text +=
      fmt::format("complete -c text-format -n '__fish_seen_subcommand_from generate' -f -a '{}'\n",
                  fmt::join(generate_kinds(), " "));
  text += fmt::format("complete -c text-format -n '__fish_seen_subcommand_from help' -f -a '{}'\n",
                      command_words());
  for (OptionSpec const& row : options()) {
    std::string line = "complete -c text-format";
    line += row.letter == 0 ? "" : fmt::format(" -s {}", row.letter);
    line += fmt::format(" -l {}", row.name);
    if (takes_file(row)) {
      line += " -r";
    } else if (!row.choices.empty()) {
      line += fmt::format(" -x -a '{}'", fmt::join(choices(row), " "));
    } else if (takes_value(row)) {
      line += " -x";
    }
    text += fmt::format("{} -d '{}'\n", line, escaped(first_sentence(row.help), R"(\')"));
  }
  return text;
}

}  // namespace cli
