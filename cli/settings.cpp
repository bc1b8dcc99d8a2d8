// SPDX-License-Identifier: MIT
//
// One function for each section of the option table, and then what the options say together.

#include "cli/settings.hpp"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <limits>

#include <fmt/format.h>

#include "cli/contradictions.hpp"
#include "cli/option_values.hpp"
#include "cli/usage_error.hpp"
#include "text_format_detection/platform/datetime.hpp"

namespace cli {

namespace {

using textio::enums::StrategyMode;

constexpr std::size_t largest_sample_bytes = std::size_t{64} << 20U;
constexpr std::size_t largest_count = textio::unknown_count - 1;

/// Calls `use` with the value of an option that stands once, if it is given.
template <typename Use>
void with_value(Arguments const& arguments, Option const option, Use const& use) {
  if (arguments.has(option)) {
    use(arguments.given.at(option).front());
  }
}

/// Stores a choice in an enumeration whose values follow the words of the table.
template <typename Enum>
void take_choice(Arguments const& arguments, Option const option, Enum& target) {
  with_value(arguments, option, [&](std::string const& word) {
    target = static_cast<Enum>(choice_value(option, word));
  });
}

std::vector<std::u16string> text_values(Arguments const& arguments, Option const option) {
  std::vector<std::u16string> texts;
  for (std::string const& word : arguments.given.at(option)) {
    texts.push_back(text_value(option, word));
  }
  return texts;
}

void take_reading(Arguments const& arguments, Settings& settings) {
  with_value(arguments, Option::Encoding,
             [&](std::string const& name) { settings.opening.encoding = name; });
  settings.opening.strict = arguments.has(Option::Strict);
  with_value(arguments, Option::SampleSize, [&](std::string const& word) {
    settings.opening.sample_bytes = size_value(Option::SampleSize, word, largest_sample_bytes);
  });
  with_value(arguments, Option::Records, [&](std::string const& word) {
    settings.records = word == "all"
                           ? textio::unknown_count
                           : count_value(Option::Records, word, 1, largest_count, ", or \"all\"");
  });
  settings.library_only = arguments.has(Option::Library);
}

void take_layout(Arguments const& arguments, Settings& settings) {
  auto& parsing = settings.parsing;
  with_value(arguments, Option::Layout, [&](std::string const& word) {
    // The words follow "auto" in the order of the modes.
    if (std::size_t const choice = choice_value(Option::Layout, word); choice > 0) {
      settings.layout = static_cast<StrategyMode>(choice - 1);
    }
  });
  if (arguments.has(Option::Delimiter)) {
    parsing.delimiters = text_values(arguments, Option::Delimiter);
  }
  with_value(arguments, Option::Widths, [&](std::string const& word) {
    parsing.column_widths = widths_value(Option::Widths, word);
  });
  with_value(arguments, Option::HeaderLines, [&](std::string const& word) {
    if (word != "auto") {
      parsing.header_lines =
          count_value(Option::HeaderLines, word, 0, largest_count, ", or \"auto\"");
      parsing.detect_header_lines = false;
    }
  });
  with_value(arguments, Option::Columns, [&](std::string const& word) {
    parsing.num_variables = count_value(Option::Columns, word, 1, largest_count);
    parsing.ignore_num_variables = false;
  });
}

/// LF, CRLF, CR or the text itself; the longer first, because of several that match the first in
/// the list wins.
std::vector<std::u16string> line_endings(std::vector<std::string> const& words) {
  std::vector<std::u16string> endings;
  for (std::string const& word : words) {
    if (word == "LF") {
      endings.emplace_back(u"\n");
    } else if (word == "CRLF") {
      endings.emplace_back(u"\r\n");
    } else if (word == "CR") {
      endings.emplace_back(u"\r");
    } else {
      endings.push_back(text_value(Option::LineEnding, word));
    }
  }
  std::ranges::stable_sort(endings, std::ranges::greater{}, &std::u16string::size);
  return endings;
}

void take_records(Arguments const& arguments, Settings& settings) {
  auto& parsing = settings.parsing;
  if (arguments.has(Option::Comment)) {
    auto const& words = arguments.given.at(Option::Comment);
    if (words.size() > 2) {
      throw usage_error(
          fmt::format("--comment is given {} times: once for comments that end with "
                      "the line, twice for the marks around a comment",
                      words.size()));
    }
    parsing.comment_style = text_values(arguments, Option::Comment);
  }
  with_value(arguments, Option::Quote, [&](std::string const& word) {
    parsing.quote_characters =
        word == "none" ? std::u16string() : std::u16string(1, character_value(Option::Quote, word));
  });
  with_value(arguments, Option::Whitespace, [&](std::string const& word) {
    parsing.whitespace = text_value(Option::Whitespace, word);
    settings.types.whitespace = parsing.whitespace;
  });
  if (arguments.has(Option::LineEnding)) {
    parsing.line_endings = line_endings(arguments.given.at(Option::LineEnding));
  }
  take_choice(arguments, Option::Consecutive, parsing.consecutive_delimiters_rule);
  take_choice(arguments, Option::Leading, parsing.leading_delimiters_rule);
  take_choice(arguments, Option::Trailing, parsing.trailing_delimiters_rule);
  take_choice(arguments, Option::EmptyLines, parsing.empty_lines);
  take_choice(arguments, Option::PartialField, parsing.partial_field_rule);
}

/// Numbers are read from a copy of the value in which the mark is a full stop. A full stop that
/// stood there before is made into something that no number holds.
void set_decimal_mark(Settings& settings, char16_t const mark) {
  settings.parsing.decimal_separator = mark;
  if (mark != u'.') {
    auto& types = settings.types;
    types.replace_characters = true;
    types.second_replacement_set = u".";
    types.second_replacement = u'\uFFFD';
    types.first_replacement_set = std::u16string(1, mark);
    types.first_replacement = u'.';
  }
}

void take_date_format(Settings& settings, std::string const& word) {
  std::u16string const format = text_value(Option::DateFormat, word);
  try {
    static_cast<void>(ostrel::io::text::typeconversion::is_datetime(textio::Field(), format));
  } catch (std::exception const&) {
    refuse_value(Option::DateFormat, word,
                 "a pattern of yyyy yy MM M MMM MMMM dd d E EEEE HH H hh h mm m ss s S a X, other "
                 "letters in single quotes");
  }
  settings.types.datetime_format = format;
}

void take_values(Arguments const& arguments, Settings& settings) {
  auto& types = settings.types;
  settings.parsing.decimal_separator = u'.';
  with_value(arguments, Option::DecimalMark, [&](std::string const& word) {
    if (word == "none") {
      settings.parsing.decimal_separator = textio::end_mark;
    } else {
      set_decimal_mark(settings, character_value(Option::DecimalMark, word));
    }
  });
  with_value(arguments, Option::ThousandsMark, [&](std::string const& word) {
    types.removal_set = std::u16string(1, character_value(Option::ThousandsMark, word));
    types.remove_characters = true;
    settings.parsing.thousands_separator = types.removal_set;
  });
  if (arguments.has(Option::Missing)) {
    types.missing_values = text_values(arguments, Option::Missing);
    types.use_missing_values = true;
    settings.parsing.missing_values = types.missing_values;
  }
  with_value(arguments, Option::DateFormat,
             [&](std::string const& word) { take_date_format(settings, word); });
  with_value(arguments, Option::Exponent, [&](std::string const& word) {
    types.exponent_characters = text_value(Option::Exponent, word);
  });
  with_value(arguments, Option::DecimalDigits, [&](std::string const& word) {
    types.decimal_digit_limit_set = true;
    types.decimal_digit_limit = static_cast<std::uint32_t>(
        count_value(Option::DecimalDigits, word, 0, std::numeric_limits<std::uint32_t>::max()));
  });
  with_value(arguments, Option::LeadingCharacter, [&](std::string const& word) {
    types.leading_character = character_value(Option::LeadingCharacter, word);
  });
  types.embedded_numbers = arguments.has(Option::EmbeddedNumbers);
  types.trim_whitespace = !arguments.has(Option::KeepBlanks);
}

void take_output(Arguments const& arguments, Settings& settings) {
  constexpr std::size_t narrowest = 40;
  constexpr std::size_t widest = 10'000;
  settings.json = arguments.has(Option::Json);
  settings.shows_library = settings.json || arguments.command == Command::Explain;
  with_value(arguments, Option::Rows, [&](std::string const& word) {
    settings.rows = count_value(Option::Rows, word, 0, 1'000'000);
  });
  with_value(arguments, Option::Width, [&](std::string const& word) {
    settings.width = count_value(Option::Width, word, narrowest, widest);
  });
  with_value(arguments, Option::Color, [&](std::string const& word) {
    static_cast<void>(choice_value(Option::Color, word));
    settings.color = word;
  });
}

bool says_something_about_the_text(OptionSpec const& row) {
  return row.section == Section::Layout || row.section == Section::Records ||
         row.section == Section::Values || row.option == Option::Encoding;
}

}  // namespace

bool Settings::is_given(Option const option) const {
  return std::ranges::find(given, option) != given.end();
}

Settings make_settings(Arguments const& arguments) {
  Settings settings;
  take_reading(arguments, settings);
  take_layout(arguments, settings);
  take_records(arguments, settings);
  take_values(arguments, settings);
  take_output(arguments, settings);
  for (OptionSpec const& row : options()) {
    if (arguments.has(row.option) && says_something_about_the_text(row)) {
      settings.given.push_back(row.option);
    }
  }
  check_contradictions(arguments, settings);
  return settings;
}

}  // namespace cli
