// SPDX-License-Identifier: MIT
//
// Logs write the fraction of a second behind a comma: "12:00:01,250 INFO started". A reading whose
// first column ends in a time and whose second begins with its three digits is of such lines.
#include <algorithm>

#include "text_format_detection/platform/ascii_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;

/// "...:01" in front of "250 INFO".
bool splits_seconds(std::u16string_view const first, std::u16string_view const second) {
  bool const ends_in_seconds = first.size() >= 8 && first[first.size() - 3] == u':' &&
                               is_digit(first[first.size() - 2]) && is_digit(first.back());
  return ends_in_seconds && second.size() > 3 &&
         std::all_of(second.begin(), second.begin() + 3, is_digit) && !is_digit(second[3]);
}

bool has_real_columns(Reading const& r) {
  if (r.delimiter != u"," || r.block.columns > 3) {
    return true;
  }
  auto const& fields = *r.strategy->field_array();
  std::size_t split = 0;
  for (std::size_t i = r.block.first; i <= r.block.last; ++i) {
    auto const record = fields.record(i);
    split += record.size() >= 2 && splits_seconds(record[0].view(), record[1].view()) ? 1U : 0U;
  }
  return split * 2 < r.block.regular;
}

}  // namespace

WeighingRule const seconds_are_no_column{
    "seconds_are_no_column", "the fraction of a second behind a comma is no column; the columns",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, has_real_columns);
    },
    [](Reading const& r) { return static_cast<double>(r.block.columns); }};

}  // namespace textimport::analysis
