// SPDX-License-Identifier: MIT
//
// The answer about one file: its text, the strategy that reads it, and how that was settled.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/library_answer.hpp"
#include "cli/settings.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/source/text_source.hpp"
#include "text_import/survey/survey.hpp"

namespace cli {

/// A record that breaks a rule which the user set to "error".
struct Violation {
  std::size_t line = 1;  ///< of the file, counted from 1
  std::string message;   ///< what, why, what to do
};

struct Answer {
  std::string path;  ///< as it was typed, "-" for standard input
  textimport::TextSource text;
  std::u16string_view sample;  ///< what was looked at, kept alive by `text`

  std::shared_ptr<textio::GenericStrategy> strategy;  ///< sampled and scored
  Verdict verdict = Verdict::Given;
  bool decided = true;
  /// One type for each column; empty for a text without records.
  std::vector<textio::enums::ColumnType> column_types;
  /// Where the data stand in the sample, in code units.
  std::size_t data_begin = 0;
  std::size_t data_end = 0;

  /// What the answer comes from, unless the library alone is asked.
  std::optional<textimport::SurveyFindings> survey;
  /// What the library says by itself; where it is shown.
  std::optional<LibraryAnswer> library;
  std::optional<Violation> violation;

  [[nodiscard]] std::u16string_view data() const {
    return sample.substr(data_begin, data_end - data_begin);
  }
};

/// Opens the file and finds out how it is laid out, as far as the settings leave that open.
/// Throws textimport::ImportError.
[[nodiscard]] Answer find_answer(std::string const& path, Settings const& settings);

/// The number of data records and header lines that were sampled.
[[nodiscard]] std::size_t records_sampled(Answer const& answer);

}  // namespace cli
