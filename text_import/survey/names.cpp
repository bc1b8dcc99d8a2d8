// SPDX-License-Identifier: MIT
//
// The words of the survey's enumerations.
#include "text_import/survey/column_findings.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport {

char const* name_of(table_layout const layout) noexcept {
  switch (layout) {
    case table_layout::delimited:
      return "delimited";
    case table_layout::space_aligned:
      return "space-aligned";
    case table_layout::fixed_width:
      return "fixed-width";
    case table_layout::lines:
      break;
  }
  return "lines";
}

char const* name_of(line_role const role) noexcept {
  switch (role) {
    case line_role::title:
      return "title";
    case line_role::comment:
      return "comment";
    case line_role::blank:
      return "blank";
    case line_role::names:
      return "names";
    case line_role::units:
      return "units";
    case line_role::ruler:
      return "ruler";
    case line_role::separator:
      return "separator";
    case line_role::footer:
      break;
  }
  return "footer";
}

char const* name_of(value_type const type) noexcept {
  switch (type) {
    case value_type::empty:
      return "empty";
    case value_type::integer:
      return "integer";
    case value_type::real:
      return "real";
    case value_type::complex_number:
      return "complex";
    case value_type::boolean:
      return "boolean";
    case value_type::date:
      return "date";
    case value_type::date_time:
      return "date-time";
    case value_type::duration:
      return "duration";
    case value_type::hexadecimal:
      return "hexadecimal";
    case value_type::binary:
      return "binary";
    case value_type::text:
      break;
  }
  return "text";
}

char const* name_of(date_order const order) noexcept {
  switch (order) {
    case date_order::none:
      return "none";
    case date_order::year_first:
      return "year-first";
    case date_order::day_first:
      return "day-first";
    case date_order::month_first:
      return "month-first";
    case date_order::ambiguous:
      break;
  }
  return "ambiguous";
}

}  // namespace textimport
