// SPDX-License-Identifier: MIT
#include "text_import/report/reading_words_internal.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "text_import/report/character_names.hpp"
#include "text_import/report/display_text.hpp"

namespace textimport::reporting {

namespace {

using textio::enums::StrategyMode;

std::string joined_names(std::vector<std::u16string> const& delimiters) {
  std::vector<std::string> names;
  names.reserve(delimiters.size());
  for (std::u16string const& delimiter : delimiters) {
    names.push_back(delimiter_name(delimiter));
  }
  return fmt::format("{}", fmt::join(names, ", "));
}

Layout layout_of(StrategyMode const mode) {
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

/// The name of a layout without delimiters.
std::string_view plain_name(Layout const layout) {
  switch (layout) {
    case Layout::SpaceAligned:
      return "runs of blanks";
    case Layout::FixedWidth:
      return "fixed widths";
    case Layout::Delimited:
    case Layout::Lines:
      break;
  }
  return "whole lines";
}

std::string reading_name(Layout const layout, std::vector<std::u16string> const& delimiters) {
  return layout == Layout::Delimited ? joined_names(delimiters) : std::string(plain_name(layout));
}

}  // namespace

std::string reading_name(LayoutFormat const& layout) {
  return reading_name(layout.layout, layout.delimiters);
}

std::string reading_name(Candidate const& candidate) {
  return reading_name(candidate.layout, {candidate.delimiter});
}

std::string reading_name(textio::GenericStrategy const& strategy) {
  return reading_name(layout_of(strategy.mode()), strategy.options().delimiters);
}

std::string candidate_text(Candidate const& candidate) {
  return fmt::format("{}, {}", reading_name(candidate), counted(candidate.num_columns, "column"));
}

std::string fields_text(Candidate const& candidate) {
  std::size_t const count = candidate.num_columns;
  switch (candidate.layout) {
    case Layout::Delimited:
      return fmt::format("{} at {}", counted(count, "field"), delimiter_names(candidate.delimiter));
    case Layout::SpaceAligned:
      return fmt::format("{} between blanks", counted(count, "field"));
    case Layout::FixedWidth:
      return fmt::format("{} of fixed width", counted(count, "column"));
    case Layout::Lines:
      break;
  }
  return "one value";
}

std::string counted(std::size_t const count, std::string_view const noun) {
  return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

std::string share_text(double const share) {
  double const percent = std::round(share * 100);
  if (share > 0 && percent < 1) {
    return "<1 %";
  }
  return fmt::format("{:.0f} %", share < 1 ? std::min(percent, 99.0) : 100.0);
}

std::string_view confidence_word(double const confidence) {
  constexpr std::array<std::pair<double, std::string_view>, 4> words{{
      {0.95, "nearly certain"},
      {0.85, "quite sure"},
      {0.7, "likely"},
      {0.5, "more likely than not"},
  }};
  auto const* const word =
      std::ranges::find_if(words, [&](auto const& row) { return confidence >= row.first; });
  return word == words.end() ? "a guess" : word->second;
}

std::string number_text(double const number) {
  constexpr double largest_real = 1e15;  // what stands above marks the end of a list
  return std::isfinite(number) && number < largest_real ? fmt::format("{:.4g}", number) : "none";
}

std::string measure_text(MeasureText const& measure, double const value) {
  switch (measure.scale) {
    case MeasureScale::Share:
      return share_text(value);
    case MeasureScale::YesOrNo:
      return value != 0 ? "yes" : "no";
    case MeasureScale::Number:
      break;
  }
  return number_text(value);
}

std::string in_quotes(std::u16string_view const text) {
  constexpr std::size_t longest_shown = 30;
  return fmt::format("\"{}\"", display_text(text, longest_shown).utf8);
}

std::string and_more(std::size_t const count) {
  return count == 0 ? std::string() : fmt::format(" and {} more", count);
}

}  // namespace textimport::reporting
