// SPDX-License-Identifier: MIT
//
// The survey: asks the library more than once about a sample, weighs the answers, and says what is
// a finding and what is not decided.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/export.hpp"

namespace textimport {

enum class table_layout : std::uint8_t { delimited, space_aligned, fixed_width, lines };

/// Which parts the caller gives: they are never changed.
struct given_parts {
  bool delimiter = false;
  bool layout = false;
  bool quote = false;
  bool comment = false;
  bool decimal_mark = false;
  bool header_lines = false;
};

struct survey_options {
  textio::parser::options parsing;
  ostrel::io::text::typedetection::TypeAnalyzerOptions types;
  given_parts given;
  std::size_t records = 250;
};

struct survey_findings {
  bool decided = true;
  table_layout layout = table_layout::lines;
  std::u16string delimiter;
  std::size_t num_columns = 1;
  std::size_t data_starts_at = 0;
  double confidence = 0;
  std::shared_ptr<textio::GenericStrategy> strategy;
};

[[nodiscard]] TEXT_IMPORT_API survey_findings survey_text(textio::Field const& sample,
                                                          survey_options const& options);

}  // namespace textimport
