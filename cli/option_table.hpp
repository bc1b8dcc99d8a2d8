// SPDX-License-Identifier: MIT
//
// The commands and options of the program, in one table. Parsing, the help text, the man page and
// the completions are all made from it, so that none of them can know an option that another one
// does not.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class Command : std::uint8_t { Detect, Explain, Generate, Help };

struct CommandSpec {
  Command command;
  std::string_view name;
  std::string_view operands;  ///< as shown in the usage line
  std::string_view help;
};

enum class Option : std::uint8_t {
  // what is read
  Encoding,
  Strict,
  SampleSize,
  Records,
  FilesFrom,
  Member,
  Library,
  // the layout
  Layout,
  Delimiter,
  Widths,
  HeaderLines,
  Names,
  LastLine,
  Columns,
  ExcludeDelimiter,
  Format,
  // records and fields
  Comment,
  Quote,
  Escape,
  Whitespace,
  LineEnding,
  Consecutive,
  Leading,
  Trailing,
  EmptyLines,
  PartialField,
  // values
  DecimalMark,
  ThousandsMark,
  Missing,
  DateFormat,
  Exponent,
  DecimalDigits,
  LeadingCharacter,
  EmbeddedNumbers,
  KeepBlanks,
  // the output
  Json,
  Oneline,
  Save,
  Rows,
  Width,
  Color,
  // the program
  Help,
  Version,
};

/// The sections of the help text, in order.
enum class Section : std::uint8_t { Reading, Layout, Records, Values, Output, Program };

struct OptionSpec {
  Option option;
  Section section;
  char letter;             ///< the short name, or 0
  std::string_view name;   ///< the long name without its dashes
  std::string_view value;  ///< the word for the value; empty for a flag and where there are choices
  std::string_view choices;  ///< the allowed words, apart by "|"; empty when the value is free
  bool repeatable;
  std::string_view help;
};

[[nodiscard]] std::span<CommandSpec const> commands();
[[nodiscard]] std::span<OptionSpec const> options();

/// The row of an option.
[[nodiscard]] OptionSpec const& spec(Option option);

[[nodiscard]] std::string_view section_title(Section section);

/// The option as a user writes it, such as "--header-lines".
[[nodiscard]] std::string flag(Option option);

/// The allowed words of an option one by one; empty when its value is free.
[[nodiscard]] std::vector<std::string_view> choices(OptionSpec const& spec);

/// Whether the option takes a value.
[[nodiscard]] inline bool takes_value(OptionSpec const& spec) {
  return !spec.value.empty() || !spec.choices.empty();
}

/// What stands for the value in help: "N", or "split|join|error".
[[nodiscard]] inline std::string_view value_name(OptionSpec const& spec) {
  return spec.value.empty() ? spec.choices : spec.value;
}

/// The first sentence of a help text, without its full stop.
[[nodiscard]] std::string_view first_sentence(std::string_view help);

/// The names of the commands.
[[nodiscard]] std::vector<std::string_view> command_names();

/// The words that the command `generate` accepts.
[[nodiscard]] std::vector<std::string_view> generate_kinds();

// What stands around the table in the help text and on the man page.
inline constexpr std::string_view program_purpose =
    "Say how a text file is laid out as a table: split by delimiters, lined up by runs of blanks, "
    "cut into columns of fixed width, or plain lines.";
inline constexpr std::string_view about_files =
    "FILE may be \"-\" for standard input, which is read too when no file is named, and the member "
    "of a zip archive, as archive.zip:member. Compressed files (gzip, bzip2, xz, zstd, lz4, zip) "
    "are known by their content.";
inline constexpr std::string_view about_exit_codes =
    "Exit codes: 0 decided; 1 not decided, the answer is a guess; 2 wrong usage, a file that could "
    "not be read, a rule that is broken, or output that could not be written. For several files "
    "the highest.";

}  // namespace cli
