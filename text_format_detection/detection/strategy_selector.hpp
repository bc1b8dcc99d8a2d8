// SPDX-License-Identifier: MIT
//
// The entry to the library: a sample goes in, the strategy that describes it best comes out.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/export.hpp"
#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio::detection {

/// Decides how a text is laid out.
///
/// Refers to both records of options, which must outlive it and may be shared by selectors on
/// several threads while nobody writes them. Detection changes nothing in the selector: calls are
/// independent of each other.
class TFD_API StrategySelector {
 public:
  using TypeAnalyzerOptions = ostrel::io::text::typedetection::TypeAnalyzerOptions;

  StrategySelector(parser::options const& options, TypeAnalyzerOptions const& type_options);
  StrategySelector(parser::options const&&, TypeAnalyzerOptions const&) = delete;
  StrategySelector(parser::options const&, TypeAnalyzerOptions const&&) = delete;
  StrategySelector(parser::options const&&, TypeAnalyzerOptions const&&) = delete;

  /// The best strategy for the sample, never null, sampled with `n` data records (`unknown_count`
  /// for all). A candidate or the line reader is scored as well; the comma fallback, which is the
  /// answer when nothing could be decided, is scored when its valuation is first asked for.
  ///
  /// The sample is the head of the text; it ends at its length or at its first 0xFFFF. It is not
  /// copied, and outlives the fields of the strategy. Time is linear in the sample for each
  /// candidate, and there is at most one candidate for each character below U+0080.
  /// Throws std::bad_alloc. Strategies turn off the rules that raise parser errors.
  std::shared_ptr<GenericStrategy> pick_strategy(Field const& sample, std::size_t n);

  /// The same decision, and the record of it in `report`, which is left unchanged on an error.
  std::shared_ptr<GenericStrategy> pick_strategy(Field const& sample, std::size_t n,
                                                 DetectionReport& report);

  /// The delimiters and the header lines of the options at construction, not the detected ones.
  [[nodiscard]] std::vector<std::u16string> const& delimiters() const noexcept {
    return delimiters_;
  }

  [[nodiscard]] std::size_t header_lines() const noexcept { return header_lines_; }

 private:
  parser::options const* options_;
  TypeAnalyzerOptions const* type_options_;
  std::vector<std::u16string> delimiters_;
  std::size_t header_lines_;
  [[maybe_unused]] bool auxiliary_flag_;       // kept with the record, not read by detection
  [[maybe_unused]] bool detect_header_lines_;  // likewise
};

}  // namespace textio::detection
