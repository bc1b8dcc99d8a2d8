// SPDX-License-Identifier: MIT
//
// What the library says in numbers, in words: those of machine-readable output, which never
// change, and those for people.
#pragma once

#include <string>
#include <string_view>

#include "cli/library_answer.hpp"
#include "text_format_detection/detection/detection_report.hpp"
#include "text_format_detection/model/enums.hpp"
#include "text_format_detection/strategies/generic_strategy.hpp"
#include "text_import/source/text_source.hpp"

namespace cli {

// Words of machine-readable output.
[[nodiscard]] std::string_view layout_word(textio::enums::StrategyMode mode);
[[nodiscard]] std::string_view type_word(textio::enums::ColumnType type);
[[nodiscard]] std::string_view verdict_word(Verdict verdict);
[[nodiscard]] std::string_view fate_word(textio::detection::CandidateFate fate);
[[nodiscard]] std::string_view clause_word(textio::detection::RejectionClause clause);
[[nodiscard]] std::string_view outcome_word(textio::detection::Outcome outcome);

/// "LF", "CRLF", "CR", "mixed"; empty when no line ends.
[[nodiscard]] std::string_view line_ending_word(textimport::LineEndingCounts const& counts);

/// A delimiter by its name, "comma"; one without a name in quotes.
[[nodiscard]] std::string delimiter_name(std::u16string_view delimiter);

/// How a strategy reads a line, in a few words: "comma", "runs of blanks", "fixed widths".
[[nodiscard]] std::string reading_name(textio::GenericStrategy const& strategy);

}  // namespace cli
