// SPDX-License-Identifier: MIT
//
// The four kinds of strategy. They add no members; their constructors say how the caller's options
// are adjusted, each to its layout.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "text_format_detection/export.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"

namespace textio {

/// Fields between delimiters. Empty lines are kept, and rules that raise errors are turned into
/// the plain ones: a candidate is judged by its score, not stopped at its first odd line.
class TFD_API DelimitedStrategy : public GenericStrategy {
 public:
  DelimitedStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options,
                    std::vector<std::u16string> const& delimiters);
  DelimitedStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options,
                    char16_t delimiter);
  /// With the delimiters of the options.
  DelimitedStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options);
  DelimitedStrategy(DelimitedStrategy const&) = delete;
  DelimitedStrategy(DelimitedStrategy&&) = delete;
  DelimitedStrategy& operator=(DelimitedStrategy const&) = delete;
  DelimitedStrategy& operator=(DelimitedStrategy&&) = delete;
  ~DelimitedStrategy() override;

  [[nodiscard]] std::vector<std::u16string> const& delimiter() const noexcept {
    return options().delimiters;
  }
};

/// Columns lined up by runs of spaces and tabs: a run counts as one delimiter, and blanks at both
/// ends of a line make no fields.
class TFD_API SpaceAlignedStrategy : public GenericStrategy {
 public:
  SpaceAlignedStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options);
  SpaceAlignedStrategy(SpaceAlignedStrategy const&) = delete;
  SpaceAlignedStrategy(SpaceAlignedStrategy&&) = delete;
  SpaceAlignedStrategy& operator=(SpaceAlignedStrategy const&) = delete;
  SpaceAlignedStrategy& operator=(SpaceAlignedStrategy&&) = delete;
  ~SpaceAlignedStrategy() override;
};

/// Columns of fixed widths in code units, left to right; the widths are moved in.
class TFD_API FixedWidthStrategy : public GenericStrategy {
 public:
  FixedWidthStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options,
                     std::vector<std::size_t>&& widths);
  FixedWidthStrategy(FixedWidthStrategy const&) = delete;
  FixedWidthStrategy(FixedWidthStrategy&&) = delete;
  FixedWidthStrategy& operator=(FixedWidthStrategy const&) = delete;
  FixedWidthStrategy& operator=(FixedWidthStrategy&&) = delete;
  ~FixedWidthStrategy() override;
};

/// Each line is one value; there are no header lines.
class TFD_API LineReaderStrategy : public GenericStrategy {
 public:
  LineReaderStrategy(parser::options const& options, TypeAnalyzerOptions const& type_options);
  LineReaderStrategy(LineReaderStrategy const&) = delete;
  LineReaderStrategy(LineReaderStrategy&&) = delete;
  LineReaderStrategy& operator=(LineReaderStrategy const&) = delete;
  LineReaderStrategy& operator=(LineReaderStrategy&&) = delete;
  ~LineReaderStrategy() override;
};

}  // namespace textio
