// SPDX-License-Identifier: MIT
//
// What the user typed cannot be done as it stands.
#pragma once

#include <stdexcept>

namespace cli {

/// The message names the option, its value and what is allowed.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The exit codes of the program. For several files the highest one counts.
namespace exit_code {
inline constexpr int decided = 0;
inline constexpr int undecided = 1;  ///< an answer by fallback
inline constexpr int failed = 2;     ///< wrong usage, or a file that could not be read
}  // namespace exit_code

}  // namespace cli
