// SPDX-License-Identifier: MIT

#include "cli/console.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <string>
#include <system_error>

#include <sys/ioctl.h>
#include <unistd.h>

namespace cli {

namespace {

std::string_view environment(char const* const name) {
  char const* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): one thread
  return value == nullptr ? std::string_view() : std::string_view(value);
}

/// The width of the window, 0 where it is not known.
std::size_t window_width() {
  winsize window{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) == 0 ? window.ws_col : 0;
}

}  // namespace

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

void write_output(std::string_view const text) {
  int const error = write_all(STDOUT_FILENO, text);
  if (error == EPIPE) {
    throw ClosedPipe();
  }
  if (error != 0) {
    throw OutputError("standard output: cannot be written: " +
                      std::generic_category().message(error));
  }
}

void write_message(std::string_view const line) {
  static_cast<void>(write_all(STDERR_FILENO, std::string(line) + "\n"));
}

textimport::Colors colors_of(std::string_view const choice) {
  bool const terminal = ::isatty(STDOUT_FILENO) == 1 && environment("NO_COLOR").empty() &&
                        environment("TERM") != "dumb";
  if (choice == "always" || (choice == "auto" && terminal)) {
    return {.heading = "\x1b[1m", .faint = "\x1b[2m", .reset = "\x1b[0m"};
  }
  return {};
}

std::size_t output_width() {
  constexpr std::size_t narrowest = 40;
  constexpr std::size_t widest = 200;
  constexpr std::size_t usual = 80;
  if (::isatty(STDOUT_FILENO) != 1) {
    return usual;
  }
  std::string_view const columns = environment("COLUMNS");
  std::size_t width = 0;
  std::from_chars(columns.begin(), columns.end(), width);
  width = width == 0 ? window_width() : width;
  return width == 0 ? usual : std::clamp(width, narrowest, widest);
}

bool input_is_terminal() {
  return ::isatty(STDIN_FILENO) == 1;
}

}  // namespace cli
