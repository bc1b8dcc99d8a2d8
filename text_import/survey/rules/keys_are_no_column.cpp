// SPDX-License-Identifier: MIT
//
// "name: value" line after line is a settings file or a record written downwards, not a table of
// two columns, when blanks are all that splits it.
#include "text_import/survey/rules/delimiter_class_internal.hpp"
#include "text_import/survey/rules/survey_rule_internal.hpp"

namespace textimport::survey {

namespace {

bool has_real_columns(reading const& r) {
  if (class_of(r) != delimiter_class::blank || r.block.columns > 3) {
    return true;
  }
  auto const& fields = *r.strategy->field_array();
  std::size_t keys = 0;
  for (std::size_t i = r.block.first; i <= r.block.last; ++i) {
    for (textio::Field const& field : fields.record(i).first(std::min<std::size_t>(2, fields.num_fields(i)))) {
      std::u16string_view const text = field.view();
      keys += !text.empty() && (text.back() == u':' || text == u"=") ? 1U : 0U;
    }
  }
  return keys * 2 < r.block.regular;
}

}  // namespace

survey_rule const keys_are_no_column{
    "keys_are_no_column",
    [](kept_readings const& kept, std::vector<reading> const& readings) {
      return keep_if(kept, readings, has_real_columns);
    },
    [](reading const& r) { return static_cast<double>(r.block.columns); }};

}  // namespace textimport::survey
