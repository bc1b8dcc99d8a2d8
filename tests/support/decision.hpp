// SPDX-License-Identifier: MIT
//
// A decision in words. Speaks to the library through its public headers alone.
#pragma once

#include <string>

#include "text_format_detection/detection/detection_report.hpp"

namespace support {

/// The layout and what it is made of: "delimited <,>", "space-aligned", "fixed-width 4 6", "lines".
[[nodiscard]] std::string show_layout(textio::GenericStrategy const& strategy);

/// What the acceptance test says against a strategy: "none", "irregular" ...
[[nodiscard]] std::string show_rejection(textio::detection::RejectionClause clause);

/// What became of every sampled strategy, and its position in the candidate list.
[[nodiscard]] std::string show_sampled(textio::detection::DetectionReport const& report);

/// The rules that ran, each with the positions of those it left.
[[nodiscard]] std::string show_rules(textio::detection::DetectionReport const& report);

/// The reason, as the enumeration calls it.
[[nodiscard]] std::string show_reason(textio::detection::DetectionReport const& report);

/// The codes of the columns.
[[nodiscard]] std::string show_types(textio::GenericStrategy const& strategy);

/// All of that and the numbers of the answer, one "key: value" a line.
[[nodiscard]] std::string show_decision(textio::GenericStrategy const& answer,
                                        textio::detection::DetectionReport const& report);

/// Whether all members are the same to the bit.
[[nodiscard]] bool same_score(textio::StrategyValuation const& a,
                              textio::StrategyValuation const& b);

}  // namespace support
