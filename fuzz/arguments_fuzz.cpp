// SPDX-License-Identifier: MIT
//
// The words of a command line, one a line, as arguments and what is to be done. No file is opened.
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/request_building.hpp"
#include "cli/usage_error.hpp"
#include "fuzz/properties.hpp"

namespace {

using cli::Arguments;
using fuzz::require;
using Words = std::vector<std::string>;

/// Nothing when the words are refused; any other exception ends the program.
template <class Action>
auto unless_refused(Action const& action) -> std::optional<decltype(action())> {
  try {
    return action();
  } catch (cli::UsageError const& error) {
    require(*error.what() != '\0', "a refusal says why");
    return std::nullopt;
  }
}

Words words_of(std::string_view text) {
  Words words;
  for (std::size_t end = 0; end != std::string_view::npos && !text.empty();) {
    end = text.find('\n');
    words.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return words;
}

/// The same arguments, with every word in its plainest place.
Words spelled_out(Arguments const& arguments) {
  Words words{std::string(
      std::ranges::find(cli::commands(), arguments.command, &cli::CommandSpec::command)->name)};
  for (auto const& [option, values] : arguments.given) {
    for (std::string const& value : values) {
      words.push_back(cli::flag(option));
      if (cli::takes_value(cli::spec(option))) {
        words.back() += "=" + value;
      }
    }
  }
  words.emplace_back("--");
  words.insert(words.end(), arguments.operands.begin(), arguments.operands.end());
  return words;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(  // NOLINT(readability-identifier-naming)
    std::uint8_t const* const data, std::size_t const size) {
  Words const words = words_of({reinterpret_cast<char const*>(data), size});
  auto const arguments = unless_refused([&] { return cli::parse_arguments(words); });
  if (!arguments) {
    return 0;
  }
  auto const again = unless_refused([&] { return cli::parse_arguments(spelled_out(*arguments)); });
  require(again && again->command == arguments->command && again->given == arguments->given &&
              again->operands == arguments->operands,
          "words spelled out mean the same");
  auto const task = unless_refused([&] { return cli::make_task(*arguments); });
  if (task) {
    auto const& request = task->request;
    require(request.records > 0 && task->opening.sample_bytes > 0, "a sample is not empty");
    require(!request.comment_markers || request.comment_markers->size() <= 2,
            "comments have two marks at most");
    require(request.line_endings == task->opening.line_endings, "lines end in one way");
    require(request.delimiters.empty() || request.widths.empty(), "one way to split a line");
    require(!request.values.decimal_mark || request.values.decimal_mark != u'1',
            "digits are no marks");
  }
  return 0;
}
