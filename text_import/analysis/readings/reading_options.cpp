// SPDX-License-Identifier: MIT
//
// The engine's strategies put the same options in place when they sample; here they come from a
// Format, which knows no strategy.
#include "text_import/analysis/readings/reading_options.hpp"

#include <string>

namespace textimport {

namespace {

using textio::enums::ReaderKind;
using textio::enums::StrategyMode;

ReaderKind reader_of(Layout const layout) {
  switch (layout) {
    case Layout::Delimited:
    case Layout::SpaceAligned:
      return ReaderKind::Delimited;
    case Layout::FixedWidth:
      return ReaderKind::FixedWidth;
    case Layout::Lines:
      break;
  }
  return ReaderKind::Line;
}

/// A delimiter is no blank that could be trimmed.
void remove_delimiters(std::u16string& whitespace, std::vector<std::u16string> const& delimiters) {
  for (std::u16string const& delimiter : delimiters) {
    if (delimiter.size() == 1) {
      std::erase(whitespace, delimiter.front());
    }
  }
}

}  // namespace

textio::parser::options reading_options(Format const& format) {
  LayoutFormat const& layout = format.layout;
  textio::parser::options options;
  options.line_endings = format.source.line_endings;
  options.comment_style = format.comments.markers;
  options.quote_characters =
      std::u16string(format.quoting.quote == 0 ? 0 : 1, format.quoting.quote);
  options.whitespace = layout.whitespace;
  options.reader_kind = reader_of(layout.layout);
  options.consecutive_delimiters_rule = layout.consecutive_delimiters;
  options.leading_delimiters_rule = layout.leading_delimiters;
  options.trailing_delimiters_rule = layout.trailing_delimiters;
  options.empty_lines = layout.empty_lines;
  options.partial_field_rule = layout.partial_fields;
  if (layout.layout == Layout::Delimited) {
    options.delimiters = layout.delimiters;
  } else if (layout.layout == Layout::SpaceAligned) {
    options.delimiters = {u" ", u"\t"};
  } else if (layout.layout == Layout::FixedWidth) {
    options.column_widths = layout.widths;
  }
  remove_delimiters(options.whitespace, options.delimiters);
  return options;
}

StrategyMode reading_mode(Layout const layout) noexcept {
  switch (layout) {
    case Layout::Delimited:
      return StrategyMode::Delimited;
    case Layout::SpaceAligned:
      return StrategyMode::SpaceAligned;
    case Layout::FixedWidth:
      return StrategyMode::FixedWidth;
    case Layout::Lines:
      break;
  }
  return StrategyMode::LineReader;
}

Layout layout_of(StrategyMode const mode) noexcept {
  switch (mode) {
    case StrategyMode::Delimited:
      return Layout::Delimited;
    case StrategyMode::SpaceAligned:
      return Layout::SpaceAligned;
    case StrategyMode::FixedWidth:
      return Layout::FixedWidth;
    case StrategyMode::LineReader:
      break;
  }
  return Layout::Lines;
}

}  // namespace textimport
