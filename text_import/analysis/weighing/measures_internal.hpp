// SPDX-License-Identifier: MIT
//
// What is measured of each way to read a text, and so what can speak for it or against it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "text_import/analysis/readings/reading_internal.hpp"
#include "text_import/analysis/weighing/text_traits_internal.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport::analysis {

/// The kinds of readings; a measure weighs differently with each.
enum class ReadingKind : std::uint8_t {
  Usual,  ///< comma, tab, semicolon, bar, and the control characters that are made for it
  Blank,  ///< a blank or runs of them: they stand in every prose
  Rare,   ///< any other delimiter: most of its uses have nothing to do with tables
  Fixed,  ///< fixed widths
  Lines,  ///< each line is a value
};

inline constexpr std::size_t num_reading_kinds = 5;

[[nodiscard]] ReadingKind kind_of(Reading const& r) noexcept;

/// The best of the readings that split the text in another manner, by kind: coverage times
/// soundness, 0 where there is none.
struct Rivals {
  double tab = 0;
  double usual = 0;
  double blank = 0;
  double rare = 0;
  double fixed = 0;
  std::size_t blank_columns = 0;  ///< of the best by blanks
};

/// One way to read a text, among the others.
struct Alternative {
  Reading const* reading = nullptr;  ///< none: each line is a value
  ReadingKind kind = ReadingKind::Lines;
  Rivals rivals;
  bool engine_agrees = false;  ///< the engine decides for it
  bool is_guess = false;       ///< something is assumed that the caller did not say
  TextTraits const* text = nullptr;
};

struct Measure {
  std::string_view name;     ///< "unsound"
  std::string_view meaning;  ///< what the number is, for people
  MeasureScale scale = MeasureScale::Share;
  double (*value)(Alternative const& alternative) = nullptr;
};

/// In the order of the weights.
[[nodiscard]] std::span<Measure const> all_measures() noexcept;

}  // namespace textimport::analysis
