// SPDX-License-Identifier: MIT
//
// How each layout adjusts its copy of the caller's options. Everything that is not named here
// stays as the caller gave it.
#include "text_format_detection/strategies/layout_strategies.hpp"

#include <utility>

#include "text_format_detection/model/text_constants_internal.hpp"

namespace textio {

namespace {

// Behind a plain space, before every delimiter that is not a default one.
constexpr double space_aligned_rank = 3.5;

/// A rule whose value Error is turned into the plain one, Split or Keep.
template <class Rule>
Rule without_error(Rule const rule) {
  return rule == Rule::Error ? Rule{} : rule;
}

/// The whitespace without every delimiter that is a single code unit.
std::u16string without_delimiters(std::u16string whitespace,
                                  std::vector<std::u16string> const& delimiters) {
  for (std::u16string const& delimiter : delimiters) {
    if (delimiter.size() == 1) {
      std::erase(whitespace, delimiter.front());
    }
  }
  return whitespace;
}

}  // namespace

DelimitedStrategy::DelimitedStrategy(parser::options const& options,
                                     TypeAnalyzerOptions const& type_options,
                                     std::vector<std::u16string> const& delimiters)
    : GenericStrategy(options, type_options, enums::StrategyMode::Delimited) {
  if (delimiters.size() == 1 && delimiters.front().size() == 1) {
    // A character that is not among the defaults is "not found", whose huge value ranks it last.
    char16_t const character = delimiters.front().front();
    set_prior_rank(static_cast<double>(model::default_delimiters.find(character)));
    set_blank_delimited(character == u' ');
  }
  std::u16string whitespace = without_delimiters(options.whitespace, delimiters);
  reset_whitespace(whitespace);
  parser::options& own = adjustable_options();
  own.consecutive_delimiters_rule = without_error(own.consecutive_delimiters_rule);
  own.leading_delimiters_rule = without_error(own.leading_delimiters_rule);
  own.trailing_delimiters_rule = without_error(own.trailing_delimiters_rule);
  own.whitespace = std::move(whitespace);
  own.auxiliary_flag = false;
  own.delimiters = delimiters;
  own.empty_lines = enums::EmptyLineRule::Read;
  own.reader_kind = enums::ReaderKind::Delimited;
}

DelimitedStrategy::DelimitedStrategy(parser::options const& options,
                                     TypeAnalyzerOptions const& type_options,
                                     char16_t const delimiter)
    : DelimitedStrategy(options, type_options,
                        std::vector<std::u16string>{std::u16string(1, delimiter)}) {}

DelimitedStrategy::DelimitedStrategy(parser::options const& options,
                                     TypeAnalyzerOptions const& type_options)
    : DelimitedStrategy(options, type_options, options.delimiters) {}

DelimitedStrategy::~DelimitedStrategy() = default;

SpaceAlignedStrategy::SpaceAlignedStrategy(parser::options const& options,
                                           TypeAnalyzerOptions const& type_options)
    : GenericStrategy(options, type_options, enums::StrategyMode::SpaceAligned) {
  set_blank_delimited(true);
  set_prior_rank(space_aligned_rank);
  std::vector<std::u16string> const blanks{u" ", u"\t"};
  std::u16string whitespace = without_delimiters(options.whitespace, blanks);
  reset_whitespace(whitespace);
  parser::options& own = adjustable_options();
  own.whitespace = std::move(whitespace);
  own.auxiliary_flag = false;
  own.delimiters = blanks;
  own.reader_kind = enums::ReaderKind::Delimited;
  own.consecutive_delimiters_rule = enums::ConsecutiveDelimitersRule::Join;
  own.empty_lines = enums::EmptyLineRule::Read;
  own.leading_delimiters_rule = enums::LeadingDelimitersRule::Ignore;
  own.trailing_delimiters_rule = enums::TrailingDelimitersRule::Ignore;
}

SpaceAlignedStrategy::~SpaceAlignedStrategy() = default;

FixedWidthStrategy::FixedWidthStrategy(parser::options const& options,
                                       TypeAnalyzerOptions const& type_options,
                                       std::vector<std::size_t>&& widths)
    : GenericStrategy(options, type_options, enums::StrategyMode::FixedWidth) {
  parser::options& own = adjustable_options();
  own.column_widths = std::exchange(widths, {});
  own.partial_field_rule = enums::PartialFieldRule::Keep;
  own.empty_lines = enums::EmptyLineRule::Read;
  own.reader_kind = enums::ReaderKind::FixedWidth;
}

FixedWidthStrategy::~FixedWidthStrategy() = default;

LineReaderStrategy::LineReaderStrategy(parser::options const& options,
                                       TypeAnalyzerOptions const& type_options)
    : GenericStrategy(options, type_options, enums::StrategyMode::LineReader) {
  header_lines(0);
  parser::options& own = adjustable_options();
  own.leading_delimiters_rule = enums::LeadingDelimitersRule::Keep;
  own.consecutive_delimiters_rule = enums::ConsecutiveDelimitersRule::Split;
  own.empty_lines = enums::EmptyLineRule::Read;
  own.reader_kind = enums::ReaderKind::Line;
}

LineReaderStrategy::~LineReaderStrategy() = default;

}  // namespace textio
