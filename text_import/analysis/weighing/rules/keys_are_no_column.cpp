// SPDX-License-Identifier: MIT
//
// "name: value" line after line is a settings file or a record written downwards, not a table of
// two columns, when blanks are all that splits it.
#include <algorithm>
#include <span>

#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/weighing/rules/delimiter_class_internal.hpp"
#include "text_import/analysis/weighing/rules/weighing_rule_internal.hpp"

namespace textimport::analysis {

namespace {

/// Whether one of the first two values ends in a colon that only a blank follows, or the second
/// begins with an equals sign.
bool is_key_and_value(Reading const& r, std::span<textio::Field const> const record) {
  std::size_t filled = 0;
  for (textio::Field const& field : record) {
    std::u16string_view const text = trimmed(field.view());
    if (text.empty()) {
      continue;
    }
    bool const ends_key = text.back() == u':' && class_of(r) == DelimiterClass::Blank;
    if (++filled > 2 || ends_key || (filled == 2 && text.front() == u'=')) {
      return filled <= 2;
    }
  }
  return false;
}

/// The share of the table's lines that are a name and its value.
double key_share(Reading const& r) {
  if (r.layout == Layout::FixedWidth) {
    return 0;
  }
  auto const& fields = *r.strategy->field_array();
  std::size_t keys = 0;
  for (std::size_t i = r.block.first; i <= r.block.last; ++i) {
    keys += is_key_and_value(r, fields.record(i)) ? 1U : 0U;
  }
  return r.block.regular == 0 ? 1
                              : static_cast<double>(keys) / static_cast<double>(r.block.regular);
}

}  // namespace

WeighingRule const keys_are_no_column{
    "keys_are_no_column",
    "\"name: value\" in each line is a list of settings; the share of such lines",
    [](KeptReadings const& kept, std::vector<Reading> const& readings) {
      return keep_if(kept, readings, [](Reading const& r) { return key_share(r) < 0.5; });
    },
    key_share, true};

}  // namespace textimport::analysis
