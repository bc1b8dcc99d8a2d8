// SPDX-License-Identifier: MIT
//
// Standard output and standard error of the program, and the terminal that they may be.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>

#include "text_import/report/style.hpp"

namespace cli {

/// Whoever read standard output has gone; there is nothing to say about it.
class ClosedPipe {};

/// Standard output, or a file, cannot be written: a full disk for instance.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes all of it to a descriptor. Returns the system's error number, 0 when all is written.
[[nodiscard]] int write_all(int descriptor, std::string_view text);

/// Writes all of it before it returns. Throws ClosedPipe or OutputError.
void write_output(std::string_view text);

/// Writes one line to standard error, if that is possible.
void write_message(std::string_view line);

/// `choice` is "auto", "always" or "never". "auto" means colour on a terminal, unless NO_COLOR is
/// set to something or TERM is "dumb".
[[nodiscard]] textimport::Colors colors_of(std::string_view choice);

/// How many cells a line of standard output has: on a terminal as many as COLUMNS or else the
/// terminal says, from 40 to 200; 80 where neither does and where it is no terminal.
[[nodiscard]] std::size_t output_width();

[[nodiscard]] bool input_is_terminal();

}  // namespace cli
