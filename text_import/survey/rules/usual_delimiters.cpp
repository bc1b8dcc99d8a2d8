// SPDX-License-Identifier: MIT
//
// Between readings that explain a text equally well the more usual delimiter decides, and then the
// hypothesis that assumes less, which comes first.
#include <algorithm>

#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

/// Smaller is more usual.
double rank(reading const& r) {
  constexpr std::u16string_view order = u",\t;|";
  if (r.layout == table_layout::Delimited) {
    auto const place =
        r.delimiter.size() == 1 ? order.find(r.delimiter.front()) : std::u16string_view::npos;
    return place != std::u16string_view::npos ? static_cast<double>(place)
           : r.delimiter == u" "              ? 5
                                              : 6;
  }
  return r.layout == table_layout::SpaceAligned ? 4 : 7;
}

kept_readings apply(kept_readings const& kept, std::vector<reading> const& readings) {
  if (kept.empty()) {
    return kept;
  }
  return {
      *std::ranges::min_element(kept, {}, [&](std::size_t const i) { return rank(readings[i]); })};
}

}  // namespace

survey_rule const usual_delimiters{"usual_delimiters", apply, rank};

}  // namespace textimport::survey
