// SPDX-License-Identifier: MIT
//
// The files of a call, named on the command line or in a list.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "cli/arguments.hpp"
#include "text_import/source/bytes/byte_source.hpp"

namespace cli {

/// Hands out one file name after the other. A list is read as it is needed, so that the first
/// files can be answered while whoever makes the list still works on it.
class FileNames {
 public:
  /// The operands; the names in the list of --files0-from; or standard input when there is
  /// neither. Throws ImportError when the list cannot be opened.
  explicit FileNames(Arguments const& arguments);

  /// The next name, or nothing. Throws ImportError when the list cannot be read on, and
  /// UsageError for an empty name, or for standard input while it is the list.
  [[nodiscard]] std::optional<std::string> next();

 private:
  void check(std::string const& name) const;

  std::deque<std::string> names_;
  std::unique_ptr<textimport::ByteSource> list_;
  std::string list_path_;
  std::string rest_;  // the start of a name whose end is not read yet
};

}  // namespace cli
