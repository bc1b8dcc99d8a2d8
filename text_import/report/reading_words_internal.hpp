// SPDX-License-Identifier: MIT
//
// Readings, shares and numbers as parts of sentences.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/format/evidence.hpp"
#include "text_import/format/format.hpp"

namespace textimport::reporting {

/// How a text is split, in a few words: "comma", "runs of blanks", "fixed widths", "whole lines".
[[nodiscard]] std::string reading_name(LayoutFormat const& layout);
[[nodiscard]] std::string reading_name(Candidate const& candidate);
[[nodiscard]] std::string reading_name(textio::GenericStrategy const& strategy);

/// "comma, 3 columns".
[[nodiscard]] std::string candidate_text(Candidate const& candidate);

/// What the reading makes of a line: "3 fields at commas", "5 columns of fixed width".
[[nodiscard]] std::string fields_text(Candidate const& candidate);

/// "1 column", "3 columns".
[[nodiscard]] std::string counted(std::size_t count, std::string_view noun);

/// A share in per cent: 100 only for all of it, 0 only for nothing: "97 %", "<1 %".
[[nodiscard]] std::string share_text(double share);

/// A confidence in words: "nearly certain".
[[nodiscard]] std::string_view confidence_word(double confidence);

/// A number of a score: without needless decimals, and a word where there is none.
[[nodiscard]] std::string number_text(double number);

/// A number that was measured: a share, yes or no, or itself.
[[nodiscard]] std::string measure_text(MeasureText const& measure, double value);

/// A text in quotes, cut when it is long.
[[nodiscard]] std::string in_quotes(std::u16string_view text);

/// What a list is ended with that is too long to be shown: " and 3 more", or nothing.
[[nodiscard]] std::string and_more(std::size_t count);

}  // namespace textimport::reporting
