// SPDX-License-Identifier: MIT
//
// What the user asks for, as the records that the libraries take.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/arguments.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_import/source/text_source.hpp"

namespace cli {

struct Settings {
  textimport::OpenOptions opening;
  textio::parser::options parsing;
  ostrel::io::text::typedetection::TypeAnalyzerOptions types;
  /// The layout that is given, if any; delimiters and widths stand in `parsing`.
  std::optional<textio::enums::StrategyMode> layout;
  /// How many data records are sampled.
  std::size_t records = 250;

  bool library_only = false;   ///< no survey
  bool shows_library = false;  ///< beside the survey's answer

  bool json = false;
  std::size_t rows = 5;    ///< data rows to show
  std::size_t width = 80;  ///< cells a line
  std::string color = "auto";

  /// The options that say something about the text, in the order of the table.
  std::vector<Option> given;

  [[nodiscard]] bool is_given(Option option) const;
};

/// Turns the options into settings. Throws usage_error for a value that is not allowed and for
/// options that contradict each other.
[[nodiscard]] Settings make_settings(Arguments const& arguments);

}  // namespace cli
