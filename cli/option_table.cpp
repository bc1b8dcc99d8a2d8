// SPDX-License-Identifier: MIT

#include "cli/option_table.hpp"

#include <algorithm>
#include <array>
#include <iterator>

namespace cli {

namespace {

constexpr std::array command_table{
    CommandSpec{Command::Detect, "detect", "[OPTION...] [FILE...]",
                "Say how each file is laid out: the layout, the delimiter, where the data stand, "
                "the columns with their names and types, and how sure that is. The command that is "
                "meant when none is named."},
    CommandSpec{Command::Explain, "explain", "[OPTION...] [FILE...]",
                "Tell how the decision came about: what was assumed, every reading that was "
                "weighed, and the rules that left one of them."},
    CommandSpec{Command::Generate, "generate", "man|bash|zsh|fish|json",
                "Print the man page, the completions for a shell, or the table of commands and "
                "options as JSON."},
    CommandSpec{Command::Help, "help", "[COMMAND]", "Print this help."},
};

constexpr std::string_view none{};

constexpr std::array option_table{
    OptionSpec{Option::Encoding, Section::Reading, 'e', "encoding", "NAME", none, false,
               "Read the bytes in this encoding instead of finding it out."},
    OptionSpec{Option::Strict, Section::Reading, 0, "strict", none, none, false,
               "Refuse a file with bytes that the encoding does not allow, instead of replacing "
               "them."},
    OptionSpec{Option::SampleSize, Section::Reading, 0, "sample-size", "SIZE", none, false,
               "Look at this much of the head of the data, in bytes after decompression; K and M "
               "stand for 1024 and 1024 times 1024. 1 to 64M; default: 1M."},
    OptionSpec{Option::Records, Section::Reading, 'n', "records", "N", none, false,
               "Sample this many data records, or \"all\" of the sample. Default: 250."},
    OptionSpec{Option::FilesFrom, Section::Reading, 0, "files0-from", "FILE", none, false,
               "Take the names of the files from FILE, each ended by a NUL byte; \"-\" is standard "
               "input."},
    OptionSpec{Option::Member, Section::Reading, 0, "member", "NAME", none, false,
               "Read this member of each archive. Default: the only one."},
    OptionSpec{Option::Library, Section::Reading, 0, "library", none, none, false,
               "The layout is what the detection library decides by itself. Default: it is asked "
               "under several assumptions, and what it says is weighed."},

    OptionSpec{Option::Layout, Section::Layout, 'l', "layout", none,
               "auto|delimited|space-aligned|fixed-width|lines", false,
               "Read the text so, whatever else would be found. Default: auto."},
    OptionSpec{Option::Delimiter, Section::Layout, 'd', "delimiter", "TEXT", none, true,
               "Split the fields here, whatever else would be found; repeat it for several "
               "delimiters. Understands \\t, \\\\, \\xHH and \\uHHHH."},
    OptionSpec{Option::Widths, Section::Layout, 'w', "widths", "N,N,...", none, false,
               "Cut the lines into columns of these widths, in UTF-16 code units."},
    OptionSpec{Option::HeaderLines, Section::Layout, 0, "header-lines", "N", none, false,
               "Take this many lines as the header, or find it out with \"auto\". Default: auto."},
    OptionSpec{Option::Names, Section::Layout, 0, "names", "N,N,...", none, false,
               "Take the names of the columns from these lines, counted from 1, or \"none\"."},
    OptionSpec{Option::LastLine, Section::Layout, 0, "last-line", "N", none, false,
               "Let the data end with this line, counted from 1."},
    OptionSpec{Option::Columns, Section::Layout, 'c', "columns", "N", none, false,
               "Expect this many columns: prefer what has them, and call an answer with another "
               "number not decided."},
    OptionSpec{Option::ExcludeDelimiter, Section::Layout, 0, "exclude-delimiter", "TEXT", none,
               true, "Never take TEXT for a delimiter."},
    OptionSpec{
        Option::Format, Section::Layout, 0, "format", "FILE", none, false,
        "Read the text as FILE says, which --save wrote for another file of the kind. Options "
        "that say the same come before it."},

    OptionSpec{Option::Comment, Section::Records, 0, "comment", "TEXT", none, true,
               "A line that starts with TEXT is a comment. Given twice: the marks that open and "
               "close a comment. \"none\": there are no comments."},
    OptionSpec{Option::Quote, Section::Records, 'q', "quote", "CHAR", none, false,
               "The character around quoted fields, or \"none\". Default: the quotation mark."},
    OptionSpec{Option::Escape, Section::Records, 0, "escape", "CHAR", none, false,
               "The character that takes the meaning of a delimiter or quote behind it, such as a "
               "backslash, or \"none\". Default: it is found out."},
    OptionSpec{Option::Whitespace, Section::Records, 0, "whitespace", "CHARS", none, false,
               "The characters that make a line blank and are trimmed from values. Default: space "
               "and tab."},
    OptionSpec{Option::LineEnding, Section::Records, 0, "line-ending", "TEXT", none, true,
               "What ends a record: LF, CRLF, CR, or any text. Default: all three."},
    OptionSpec{Option::Consecutive, Section::Records, 0, "consecutive", none, "split|join|error",
               false,
               "Whether a run of delimiters makes empty fields, counts as one, or is an error. "
               "Default: split."},
    OptionSpec{Option::Leading, Section::Records, 0, "leading", none, "keep|ignore|error", false,
               "Whether a delimiter at the start of a record makes an empty field, is skipped, or "
               "is an error. Default: keep."},
    OptionSpec{Option::Trailing, Section::Records, 0, "trailing", none, "keep|ignore|error", false,
               "Likewise at the end of a record. Default: keep."},
    OptionSpec{Option::EmptyLines, Section::Records, 0, "empty-lines", none, "skip|read|error",
               false,
               "Whether an empty line is skipped, is a record without fields, or is an error. "
               "Default: skip."},
    OptionSpec{Option::PartialField, Section::Records, 0, "partial-field", none,
               "keep|drop-field|drop-record|fill-missing|wrap|error", false,
               "What a line that ends inside a fixed-width column gives: the short field, no "
               "field, no record, a missing value, a field that runs on into the next line, or "
               "an error. Default: keep."},

    OptionSpec{
        Option::DecimalMark, Section::Values, 0, "decimal-mark", "CHAR", none, false,
        "The mark before the decimals of a number, or \"none\". It is never taken for a "
        "delimiter: a comma says that fields do not end at commas. Default: it is found out."},
    OptionSpec{Option::ThousandsMark, Section::Values, 0, "thousands-mark", "CHAR", none, false,
               "The mark between groups of digits. It is never taken for a delimiter."},
    OptionSpec{Option::Missing, Section::Values, 'm', "missing", "TEXT", none, true,
               "A value that stands for a missing one, such as NA."},
    OptionSpec{Option::DateFormat, Section::Values, 0, "date-format", "PATTERN", none, false,
               "The only form of dates, such as dd.MM.yyyy or yyyy-MM-dd HH:mm. Default: the "
               "usual forms."},
    OptionSpec{Option::Exponent, Section::Values, 0, "exponent", "CHARS", none, false,
               "The characters that may stand before the exponent of a number. Default: eEdD."},
    OptionSpec{Option::DecimalDigits, Section::Values, 0, "decimal-digits", "N", none, false,
               "A number has at most N decimals; what has more is text."},
    OptionSpec{Option::LeadingCharacter, Section::Values, 0, "leading-character", "CHAR", none,
               false, "A character to drop from the start of values, such as a currency sign."},
    OptionSpec{Option::EmbeddedNumbers, Section::Values, 0, "embedded-numbers", none, none, false,
               "A value that holds a number anywhere counts as a number."},
    OptionSpec{Option::KeepBlanks, Section::Values, 0, "keep-blanks", none, none, false,
               "Do not trim whitespace from a value before its type is found out."},

    OptionSpec{Option::Json, Section::Output, 'j', "json", none, none, false,
               "Print one JSON object a line for each file."},
    OptionSpec{Option::Oneline, Section::Output, 0, "oneline", none, none, false,
               "Print one line for each file, its parts apart by tabs: the path, the layout, the "
               "delimiter or the widths, the first line of the data, the number of columns, the "
               "encoding, how sure that is."},
    OptionSpec{Option::Save, Section::Output, 0, "save", "FILE", none, false,
               "Write the answer to FILE as JSON too, for --format and for other programs. For one "
               "input."},
    OptionSpec{Option::Rows, Section::Output, 'r', "rows", "N", none, false,
               "Show this many rows of the data. Default: 5."},
    OptionSpec{
        Option::Width, Section::Output, 0, "width", "N", none, false,
        "Fit the output for people into lines of N cells, at least 40, or \"auto\": the width "
        "of the terminal up to 200, and 80 without one. Default: auto."},
    OptionSpec{Option::Color, Section::Output, 0, "color", none, "auto|always|never", false,
               "Whether to use colour. \"auto\" does on a terminal, unless NO_COLOR is set or TERM "
               "is \"dumb\"."},

    OptionSpec{Option::Help, Section::Program, 'h', "help", none, none, false, "Print this help."},
    OptionSpec{Option::Version, Section::Program, 'V', "version", none, none, false,
               "Print the version."},
};

}  // namespace

std::span<CommandSpec const> commands() {
  return command_table;
}

std::span<OptionSpec const> options() {
  return option_table;
}

OptionSpec const& spec(Option const option) {
  return *std::ranges::find(option_table, option, &OptionSpec::option);
}

std::string_view section_title(Section const section) {
  switch (section) {
    case Section::Reading:
      return "What is read";
    case Section::Layout:
      return "The layout: what is given is never changed, the rest is found out";
    case Section::Records:
      return "Records and fields";
    case Section::Values:
      return "Values";
    case Section::Output:
      return "Output";
    case Section::Program:
      break;
  }
  return "The program";
}

std::string flag(Option const option) {
  return "--" + std::string(spec(option).name);
}

namespace {

/// The words between the bars.
std::vector<std::string_view> words_of(std::string_view rest) {
  std::vector<std::string_view> words;
  while (!rest.empty()) {
    auto const end = std::min(rest.find('|'), rest.size());
    words.push_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return words;
}

}  // namespace

std::vector<std::string_view> choices(OptionSpec const& spec) {
  return words_of(spec.choices);
}

std::vector<std::string_view> command_names() {
  std::vector<std::string_view> names;
  std::ranges::transform(command_table, std::back_inserter(names), &CommandSpec::name);
  return names;
}

std::vector<std::string_view> generate_kinds() {
  return words_of(
      std::ranges::find(command_table, Command::Generate, &CommandSpec::command)->operands);
}

std::string_view first_sentence(std::string_view const help) {
  return help.substr(0, std::min(help.find(". "), help.size() - 1));
}

}  // namespace cli
