// SPDX-License-Identifier: MIT
//
// What is asked of one analysis: the request with its Format taken apart, and the same in the
// words of the engine.
#pragma once

#include <optional>
#include <string>

#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_import/format/line_syntax.hpp"
#include "text_import/format/request.hpp"
#include "text_import/format/text_sample.hpp"

namespace textimport::analysis {

struct Task {
  /// Its members that were not set are those of its Format, as far as it has them.
  Request request;
  textio::parser::options parsing;  ///< what is given, and the usual for the rest
  ostrel::io::text::typedetection::TypeAnalyzerOptions types;
  std::optional<Layout> layout;  ///< the one that the request amounts to
  LineSyntax syntax;             ///< what lines are given to have beside
  SourceFormat source;
  bool goes_on = false;

  /// Whether the caller says how the lines are split: the layout, and the delimiter or the widths
  /// where it has them.
  [[nodiscard]] bool splits_are_given() const noexcept;

  /// Whether the delimiter is one that the caller rules out: by name, or as a mark in numbers.
  [[nodiscard]] bool excludes(std::u16string_view delimiter) const noexcept;
};

/// The quote of parsing options, 0 for none.
[[nodiscard]] inline char16_t quote_of(textio::parser::options const& parsing) noexcept {
  return parsing.quote_characters.empty() ? u'\0' : parsing.quote_characters.front();
}

[[nodiscard]] Task make_task(TextSample const& sample, Request const& request);

}  // namespace textimport::analysis
