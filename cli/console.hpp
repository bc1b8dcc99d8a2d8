// SPDX-License-Identifier: MIT
//
// Standard output and standard error of the program.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace cli {

/// Whoever read standard output has gone; there is nothing to say about it.
class closed_pipe {};

/// Standard output cannot be written, a full disk for instance.
class output_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes all of it before it returns. Throws closed_pipe or output_error.
void write_output(std::string_view text);

/// Writes one line to standard error, if that is possible.
void write_message(std::string_view line);

/// Marks for headings, or nothing where no colour is wanted.
struct Colors {
  std::string_view heading;
  std::string_view faint;
  std::string_view reset;
};

/// `choice` is "auto", "always" or "never". "auto" means colour on a terminal, unless NO_COLOR is
/// set to something or TERM is "dumb".
[[nodiscard]] Colors colors_of(std::string_view choice);

[[nodiscard]] bool input_is_terminal();

}  // namespace cli
