// SPDX-License-Identifier: MIT
//
// From the options that were typed to what the libraries are asked: one to one, nothing is
// concluded and no file is opened.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "cli/arguments.hpp"
#include "text_import/format/request.hpp"
#include "text_import/source/text_source.hpp"

namespace cli {

enum class Output : std::uint8_t { Report, Line, Json };

/// What is to be done with each file.
struct Task {
  textimport::OpenOptions opening;
  textimport::Request request;
  std::string format_path;  ///< the Format that is given, not read yet; empty for none
  std::string save_path;    ///< where the Format goes to; empty for nowhere

  Output output = Output::Report;
  std::size_t rows = 5;              ///< data rows to show
  std::optional<std::size_t> width;  ///< cells a line; empty: as wide as the output is
  std::string color = "auto";
};

/// Throws UsageError for a value that is not allowed and for options that contradict each other.
[[nodiscard]] Task make_task(Arguments const& arguments);

}  // namespace cli
