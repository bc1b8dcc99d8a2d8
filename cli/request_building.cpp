// SPDX-License-Identifier: MIT
//
// One function for each section of the option table, and then what the options say together.

#include "cli/request_building.hpp"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <limits>
#include <vector>

#include <fmt/format.h>

#include "cli/contradictions.hpp"
#include "cli/option_values.hpp"
#include "cli/usage_error.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/platform/datetime.hpp"

namespace cli {

namespace {

constexpr std::size_t largest_sample_bytes = std::size_t{64} << 20U;
constexpr std::size_t largest_count = textimport::all_records - 1;

/// Calls `use` with the value of an option that stands once, if it is given.
template <typename Use>
void with_value(Arguments const& arguments, Option const option, Use const& use) {
  if (arguments.has(option)) {
    use(arguments.value(option));
  }
}

/// Stores a choice in an enumeration whose values follow the words of the table.
template <typename Enum>
void take_choice(Arguments const& arguments, Option const option, std::optional<Enum>& target) {
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

/// Empty when the option is not given.
std::string path_value(Arguments const& arguments, Option const option) {
  if (!arguments.has(option)) {
    return {};
  }
  std::string const& path = arguments.value(option);
  if (path.empty()) {
    refuse_value(option, path, "the name of a file");
  }
  return path;
}

void take_reading(Arguments const& arguments, Task& task) {
  auto& opening = task.opening;
  with_value(arguments, Option::Encoding,
             [&](std::string const& name) { opening.encoding = name; });
  with_value(arguments, Option::Member, [&](std::string const& name) { opening.member = name; });
  opening.strict = arguments.has(Option::Strict);
  with_value(arguments, Option::SampleSize, [&](std::string const& word) {
    opening.sample_bytes = size_value(Option::SampleSize, word, largest_sample_bytes);
  });
  with_value(arguments, Option::Records, [&](std::string const& word) {
    task.request.records =
        word == "all" ? textimport::all_records
                      : count_value(Option::Records, word, 1, largest_count, ", or \"all\"");
  });
  task.request.engine_decides = arguments.has(Option::Library);
}

void take_layout(Arguments const& arguments, Task& task) {
  auto& request = task.request;
  with_value(arguments, Option::Layout, [&](std::string const& word) {
    // The words follow "auto" in the order of the layouts.
    if (std::size_t const choice = choice_value(Option::Layout, word); choice > 0) {
      request.layout = static_cast<textimport::Layout>(choice - 1);
    }
  });
  if (arguments.has(Option::Delimiter)) {
    request.delimiters = text_values(arguments, Option::Delimiter);
  }
  if (arguments.has(Option::ExcludeDelimiter)) {
    request.excluded_delimiters = text_values(arguments, Option::ExcludeDelimiter);
  }
  with_value(arguments, Option::Widths,
             [&](std::string const& word) { request.widths = widths_value(Option::Widths, word); });
  with_value(arguments, Option::HeaderLines, [&](std::string const& word) {
    if (word != "auto") {
      request.header_lines =
          count_value(Option::HeaderLines, word, 0, largest_count, ", or \"auto\"");
    }
  });
  with_value(arguments, Option::Names, [&](std::string const& word) {
    request.name_lines.emplace();
    if (word != "none") {
      for (std::size_t const line : lines_value(Option::Names, word)) {
        request.name_lines->push_back(line - 1);
      }
    }
  });
  with_value(arguments, Option::LastLine, [&](std::string const& word) {
    request.last_line = count_value(Option::LastLine, word, 1, largest_count) - 1;
  });
  with_value(arguments, Option::Columns, [&](std::string const& word) {
    request.num_columns = count_value(Option::Columns, word, 1, largest_count);
  });
  task.format_path = path_value(arguments, Option::Format);
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

std::vector<std::u16string> comment_markers(Arguments const& arguments) {
  auto const& words = arguments.given.at(Option::Comment);
  if (words.size() == 1 && words.front() == "none") {
    return {};
  }
  if (words.size() > 2) {
    throw UsageError(
        fmt::format("--comment is given {} times: once for comments that end with the line, twice "
                    "for the marks around a comment",
                    words.size()));
  }
  return text_values(arguments, Option::Comment);
}

void take_records(Arguments const& arguments, Task& task) {
  auto& request = task.request;
  if (arguments.has(Option::Comment)) {
    request.comment_markers = comment_markers(arguments);
  }
  with_value(arguments, Option::Quote, [&](std::string const& word) {
    request.quote = word == "none" ? u'\0' : character_value(Option::Quote, word);
  });
  with_value(arguments, Option::Escape, [&](std::string const& word) {
    request.escape = word == "none" ? u'\0' : character_value(Option::Escape, word);
  });
  with_value(arguments, Option::Whitespace, [&](std::string const& word) {
    request.whitespace = text_value(Option::Whitespace, word);
  });
  if (arguments.has(Option::LineEnding)) {
    request.line_endings = line_endings(arguments.given.at(Option::LineEnding));
    task.opening.line_endings = request.line_endings;
  }
  take_choice(arguments, Option::Consecutive, request.rules.consecutive_delimiters);
  take_choice(arguments, Option::Leading, request.rules.leading_delimiters);
  take_choice(arguments, Option::Trailing, request.rules.trailing_delimiters);
  take_choice(arguments, Option::EmptyLines, request.rules.empty_lines);
  take_choice(arguments, Option::PartialField, request.rules.partial_fields);
}

std::u16string date_pattern(std::string const& word) {
  std::u16string pattern = text_value(Option::DateFormat, word);
  try {
    static_cast<void>(ostrel::io::text::typeconversion::is_datetime(textio::Field(), pattern));
  } catch (std::exception const&) {
    refuse_value(Option::DateFormat, word,
                 "a pattern of yyyy yy MM M MMM MMMM dd d E EEEE HH H hh h mm m ss s S a X, other "
                 "letters in single quotes");
  }
  return pattern;
}

void take_values(Arguments const& arguments, Task& task) {
  auto& values = task.request.values;
  with_value(arguments, Option::DecimalMark, [&](std::string const& word) {
    values.decimal_mark = word == "none" ? u'\0' : mark_value(Option::DecimalMark, word);
  });
  with_value(arguments, Option::ThousandsMark, [&](std::string const& word) {
    values.thousands_mark = mark_value(Option::ThousandsMark, word);
  });
  if (arguments.has(Option::Missing)) {
    values.missing_words = text_values(arguments, Option::Missing);
  }
  with_value(arguments, Option::DateFormat,
             [&](std::string const& word) { values.date_pattern = date_pattern(word); });
  with_value(arguments, Option::Exponent, [&](std::string const& word) {
    values.exponent_characters = text_value(Option::Exponent, word);
  });
  with_value(arguments, Option::DecimalDigits, [&](std::string const& word) {
    values.max_decimals = static_cast<std::uint32_t>(
        count_value(Option::DecimalDigits, word, 0, std::numeric_limits<std::uint32_t>::max()));
  });
  with_value(arguments, Option::LeadingCharacter, [&](std::string const& word) {
    values.leading_character = character_value(Option::LeadingCharacter, word);
  });
  values.embedded_numbers = arguments.has(Option::EmbeddedNumbers);
  values.keeps_blanks = arguments.has(Option::KeepBlanks);
}

void take_output(Arguments const& arguments, Task& task) {
  constexpr std::size_t narrowest = 40;
  constexpr std::size_t widest = 10'000;
  constexpr std::size_t most_rows = 1'000'000;
  if (arguments.has(Option::Json)) {
    task.output = Output::Json;
  } else if (arguments.has(Option::Oneline)) {
    task.output = Output::Line;
  }
  task.save_path = path_value(arguments, Option::Save);
  with_value(arguments, Option::Rows, [&](std::string const& word) {
    task.rows = count_value(Option::Rows, word, 0, most_rows);
  });
  with_value(arguments, Option::Width, [&](std::string const& word) {
    if (word != "auto") {
      task.width = count_value(Option::Width, word, narrowest, widest, ", or \"auto\"");
    }
  });
  with_value(arguments, Option::Color, [&](std::string const& word) {
    static_cast<void>(choice_value(Option::Color, word));
    task.color = word;
  });
}

}  // namespace

Task make_task(Arguments const& arguments) {
  Task task;
  take_reading(arguments, task);
  take_layout(arguments, task);
  take_records(arguments, task);
  take_values(arguments, task);
  take_output(arguments, task);
  check_contradictions(arguments, task.request);
  return task;
}

}  // namespace cli
