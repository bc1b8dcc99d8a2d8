// SPDX-License-Identifier: MIT
//
// The answer about one file: its text, the strategy that reads it, and how that was settled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/settings.hpp"
#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/source/text_source.hpp"

namespace cli {

/// Why the answer is what it is: the reasons of the library, and two of the command's own.
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
};

/// How a text is read, and how that was settled.
struct Finding {
  std::shared_ptr<textio::GenericStrategy> strategy;  ///< sampled
  /// How it was found out; empty when the reading was given.
  std::optional<textio::detection::DetectionReport> report;
  Verdict verdict = Verdict::Given;
  bool decided = true;
};

/// A record that breaks a rule which the user set to "error".
struct Violation {
  std::size_t line = 1;  ///< of the file, counted from 1
  std::string message;   ///< what, why, what to do
};

struct Answer {
  std::string path;  ///< as it was typed, "-" for standard input
  textimport::text_source text;
  std::u16string_view sample;  ///< what was looked at, kept alive by `text`
  Finding finding;             ///< scored
  /// The number that is given, else the strategy's.
  std::size_t header_lines = 0;
  /// One type for each column; empty for a text without records.
  std::vector<textio::enums::ColumnType> column_types;
  std::optional<Violation> violation;
};

/// The selector's decision about a sample under these options.
[[nodiscard]] Finding detect_layout(textio::parser::options const& parsing,
                                    Settings const& settings, std::u16string_view sample);

/// Opens the file and finds out how it is laid out, as far as the settings leave that open.
/// Throws textimport::import_error.
[[nodiscard]] Answer find_answer(std::string const& path, Settings const& settings);

/// The number of data records and header lines that were sampled.
[[nodiscard]] std::size_t records_sampled(Answer const& answer);

}  // namespace cli
