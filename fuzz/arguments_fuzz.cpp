// SPDX-License-Identifier: MIT
//
// The words of a command line, one a line, as arguments and settings. No file is opened.
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/settings.hpp"
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
  } catch (cli::usage_error const& error) {
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

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* const data, std::size_t const size) {
  Words const words = words_of({reinterpret_cast<char const*>(data), size});
  auto const arguments = unless_refused([&] { return cli::parse_arguments(words); });
  if (!arguments) {
    return 0;
  }
  auto const again = unless_refused([&] { return cli::parse_arguments(spelled_out(*arguments)); });
  require(again && again->command == arguments->command && again->given == arguments->given &&
              again->operands == arguments->operands,
          "words spelled out mean the same");
  auto const settings = unless_refused([&] { return cli::make_settings(*arguments); });
  if (settings) {
    auto const& parsing = settings->parsing;
    require(settings->records > 0 && settings->opening.sample_bytes > 0, "a sample is not empty");
    require(parsing.comment_style.size() <= 2, "comments have two marks at most");
    require(!parsing.line_endings.empty(), "lines end somehow");
    require(settings->given.size() <= arguments->given.size(),
            "nothing is given that was not typed");
  }
  return 0;
}
