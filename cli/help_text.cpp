// SPDX-License-Identifier: MIT

#include "cli/help_text.hpp"

#include <fmt/format.h>

#include "cli/option_table.hpp"
#include "text_format_detection/version.hpp"
#include "text_import/report/wrapping.hpp"

namespace cli {

namespace {

constexpr std::size_t width = 80;
constexpr std::size_t indent = 24;

/// A name and what it means, the meaning in a column of its own.
std::string entry(std::string const& name, std::string_view const meaning) {
  std::string const head = "  " + name;
  std::string const gap = head.size() + 2 <= indent ? std::string(indent - head.size(), ' ')
                                                    : "\n" + std::string(indent, ' ');
  return head + gap + textimport::wrapped(meaning, indent, width);
}

std::string option_name(OptionSpec const& row) {
  std::string name = row.letter == 0 ? "    " : fmt::format("-{}, ", row.letter);
  name += flag(row.option);
  if (takes_value(row)) {
    name += fmt::format(" {}", value_name(row));
  }
  return name;
}

}  // namespace

std::string help_text() {
  std::string text = "Usage: text-format [COMMAND] [OPTION...] [FILE...]\n\n";
  text += textimport::wrapped(program_purpose, 0, width) + "\nCommands\n";
  for (CommandSpec const& command : commands()) {
    text += entry(std::string(command.name), command.help);
  }
  OptionSpec const* previous = nullptr;
  for (OptionSpec const& row : options()) {
    if (previous == nullptr || row.section != previous->section) {
      text += fmt::format("\n{}\n", section_title(row.section));
    }
    previous = &row;
    text += entry(option_name(row), row.help);
  }
  return text + "\n" + textimport::wrapped(about_files, 0, width) + "\n" +
         textimport::wrapped(about_exit_codes, 0, width);
}

std::string short_help() {
  return "Usage: text-format [COMMAND] [OPTION...] [FILE...]\n"
         "  text-format data.csv            how the file is laid out\n"
         "  text-format explain data.csv    how that was decided\n"
         "  text-format --help              all commands and options\n";
}

std::string version_text() {
  return fmt::format("text-format {}\n", textio::library_version());
}

}  // namespace cli
