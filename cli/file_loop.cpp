// SPDX-License-Identifier: MIT

#include "cli/file_loop.hpp"

#include <algorithm>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "cli/console.hpp"
#include "cli/display_text.hpp"
#include "cli/file_names.hpp"
#include "cli/json_report.hpp"
#include "cli/usage_error.hpp"

namespace cli {

namespace {

/// The exit code for one file, once everything about it is printed.
int answer_file(std::string const& path, Settings const& settings, Renderer const& render,
                bool& first) {
  try {
    Answer const answer = find_answer(path, settings);
    write_output(render(answer, first));
    first = false;
    if (answer.violation) {
      write_message(fmt::format("{}:{}: {}", display_bytes(textimport::display_name(path)).utf8,
                                answer.violation->line, answer.violation->message));
      return exit_code::failed;
    }
    return answer.decided ? exit_code::decided : exit_code::undecided;
  } catch (textimport::ImportError const& error) {
    write_message(display_bytes(error.what()).utf8);
    if (settings.json) {
      write_output(json_line(error_object(path, error)));
    }
    return exit_code::failed;
  }
}

}  // namespace

int answer_files(Arguments const& arguments, Settings const& settings, Renderer const& render) {
  int code = exit_code::decided;
  bool first = true;
  try {
    FileNames names(arguments);
    while (auto const path = names.next()) {
      code = std::max(code, answer_file(*path, settings, render, first));
    }
  } catch (textimport::ImportError const& error) {  // the list itself
    write_message(display_bytes(error.what()).utf8);
    code = exit_code::failed;
  } catch (closed_pipe const&) {
    // Whoever reads has seen enough.
  }
  return code;
}

}  // namespace cli
