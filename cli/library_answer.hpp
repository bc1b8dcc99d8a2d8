// SPDX-License-Identifier: MIT
//
// What the library says about a sample by itself, without the survey.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/settings.hpp"
#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace cli {

/// Why the answer is what it is: the reasons of the library, two of the command's own, and one of
/// the survey.
enum class Verdict : std::uint8_t {
  DateColumns,
  NoRecords,
  NoCandidates,
  Single,
  Ranked,
  Tie,
  NoneLeft,
  Given,          ///< the user gave the delimiters, the widths or the layout
  ColumnsDiffer,  ///< the user expects another number of columns
  Unsure,         ///< too little speaks for the best reading
};

/// How a text is read, and how that was settled.
struct Finding {
  std::shared_ptr<textio::GenericStrategy> strategy;  ///< sampled
  /// How it was found out; empty when the reading was given.
  std::optional<textio::detection::DetectionReport> report;
  Verdict verdict = Verdict::Given;
  bool decided = true;
};

struct LibraryAnswer {
  Finding finding;  ///< scored
  /// The number that is given, else the strategy's.
  std::size_t header_lines = 0;
  /// One type for each column; empty for a text without records.
  std::vector<textio::enums::ColumnType> column_types;
};

/// The selector's decision about a sample under these options.
[[nodiscard]] Finding detect_layout(textio::parser::options const& parsing,
                                    Settings const& settings, std::u16string_view sample);

/// The library's answer, as far as the settings leave it open.
[[nodiscard]] LibraryAnswer ask_library(std::u16string_view sample, Settings const& settings);

/// Whether the user expects another number of columns.
[[nodiscard]] bool columns_differ(std::size_t columns, Settings const& settings);

/// The number of code units of the header lines.
[[nodiscard]] std::size_t header_length(LibraryAnswer const& answer, std::u16string_view sample);

}  // namespace cli
