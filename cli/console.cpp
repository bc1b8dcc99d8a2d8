// SPDX-License-Identifier: MIT

#include "cli/console.hpp"

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <unistd.h>

namespace cli {

namespace {

/// The system's error number, or 0 when everything was written.
int write_all(int const descriptor, std::string_view text) {
  while (!text.empty()) {
    ssize_t const written = ::write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

std::string_view environment(char const* const name) {
  char const* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): one thread
  return value == nullptr ? std::string_view() : std::string_view(value);
}

}  // namespace

void write_output(std::string_view const text) {
  int const error = write_all(STDOUT_FILENO, text);
  if (error == EPIPE) {
    throw closed_pipe();
  }
  if (error != 0) {
    throw output_error("standard output: cannot be written: " +
                       std::generic_category().message(error));
  }
}

void write_message(std::string_view const line) {
  static_cast<void>(write_all(STDERR_FILENO, std::string(line) + "\n"));
}

Colors colors_of(std::string_view const choice) {
  bool const terminal = ::isatty(STDOUT_FILENO) == 1 && environment("NO_COLOR").empty() &&
                        environment("TERM") != "dumb";
  if (choice == "always" || (choice == "auto" && terminal)) {
    return {.heading = "\x1b[1m", .faint = "\x1b[2m", .reset = "\x1b[0m"};
  }
  return {};
}

bool input_is_terminal() {
  return ::isatty(STDIN_FILENO) == 1;
}

}  // namespace cli
