// SPDX-License-Identifier: MIT
#include "text_import/analysis/readings/unguessed_delimiters_internal.hpp"

#include <algorithm>

#include "text_import/analysis/readings/sign_sequences_internal.hpp"
#include "text_import/analysis/readings/usual_delimiters_internal.hpp"

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

bool was_sampled(textio::detection::DetectionReport const& report, view const delimiter) {
  return std::ranges::any_of(report.sampled, [&](auto const& sampled) {
    auto const& delimiters = sampled.strategy->options().delimiters;
    return delimiters.size() == 1 && delimiters.front() == delimiter;
  });
}

}  // namespace

TextDelimiters find_text_delimiters(LineIndex const& lines) {
  return {lines.held_of(common_delimiters), recurring_signs(lines)};
}

std::vector<std::u16string> unguessed_delimiters(TextDelimiters const& text,
                                                 textio::detection::DetectionReport const& report) {
  std::vector<std::u16string> delimiters;
  for (char16_t const c : common_delimiters) {
    if (text.common.find(c) != view::npos && !was_sampled(report, view(&c, 1))) {
      delimiters.emplace_back(1, c);
    }
  }
  for (std::u16string const& delimiter : text.unusual) {
    if (!was_sampled(report, delimiter)) {
      delimiters.push_back(delimiter);
    }
  }
  return delimiters;
}

}  // namespace textimport::analysis
