// SPDX-License-Identifier: MIT

#include "cli/man_page.hpp"

#include <fmt/format.h>

#include "cli/option_table.hpp"
#include "text_format_detection/version.hpp"

namespace cli {

namespace {

/// Text as the formatter has to see it: a backslash and a dash are commands of its own.
std::string roff(std::string_view const text) {
  std::string result;
  for (char const c : text) {
    if (c == '\\') {
      result += "\\e";
    } else if (c == '-') {
      result += "\\-";
    } else {
      result += c;
    }
  }
  return result;
}

std::string option_heading(OptionSpec const& row) {
  std::string text = row.letter == 0 ? "" : fmt::format(R"(\fB\-{}\fR, )", row.letter);
  text += fmt::format(R"(\fB{}\fR)", roff(flag(row.option)));
  if (takes_value(row)) {
    text += fmt::format(R"( \fI{}\fR)", roff(value_name(row)));
  }
  return text;
}

/// A paragraph with a heading that hangs out.
std::string entry(std::string const& heading, std::string_view const text) {
  return fmt::format(".TP\n{}\n{}\n", heading, roff(text));
}

constexpr std::string_view examples = R"(.TP
text\-format data.csv
How the file is laid out.
.TP
text\-format \-\-decimal\-mark , \-\-missing NA *.csv
The same for files with decimal commas, where NA stands for no value.
.TP
text\-format explain data.csv
How that was decided.
.TP
find . \-name \(aq*.txt\(aq \-print0 | text\-format \-\-files0\-from \- \-\-json
One JSON object for each file below the folder.
)";

}  // namespace

std::string man_page() {
  std::string text =
      fmt::format(".TH TEXT\\-FORMAT 1 \"\" \"text\\-format {}\" \"User Commands\"\n",
                  textio::library_version());
  text += ".SH NAME\ntext\\-format \\- say how a text file is laid out as a table\n.SH SYNOPSIS\n";
  for (CommandSpec const& command : commands()) {
    text += fmt::format(".B text\\-format {}\n{}\n.br\n", command.name, roff(command.operands));
  }
  text += fmt::format(".SH DESCRIPTION\n{}\n.PP\n{}\n.SH COMMANDS\n", roff(program_purpose),
                      roff(about_files));
  for (CommandSpec const& command : commands()) {
    text += entry(fmt::format(R"(\fB{}\fR)", command.name), command.help);
  }
  text += ".SH OPTIONS\n";
  OptionSpec const* previous = nullptr;
  for (OptionSpec const& row : options()) {
    if (previous == nullptr || row.section != previous->section) {
      text += fmt::format(".SS {}\n", roff(section_title(row.section)));
    }
    text += entry(option_heading(row), row.help);
    previous = &row;
  }
  text += fmt::format(".SH EXIT STATUS\n{}\n.SH ENVIRONMENT\n", roff(about_exit_codes));
  text += entry(R"(\fBNO_COLOR\fR)", "Set to anything: no colour on a terminal.");
  text += entry(R"(\fBTERM\fR)", "\"dumb\": no colour either.");
  text += entry(R"(\fBCOLUMNS\fR)", "The width of the terminal, where it is set.");
  return text + ".SH EXAMPLES\n" + std::string(examples);
}

}  // namespace cli
