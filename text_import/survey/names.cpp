// SPDX-License-Identifier: MIT
//
// The words of the survey's enumerations, and the layout that the library's readings have in it.
#include "text_import/survey/column_findings.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport {

table_layout layout_of(textio::enums::StrategyMode const mode) noexcept {
  switch (mode) {
    case textio::enums::StrategyMode::Delimited:
      return table_layout::Delimited;
    case textio::enums::StrategyMode::SpaceAligned:
      return table_layout::SpaceAligned;
    case textio::enums::StrategyMode::FixedWidth:
      return table_layout::FixedWidth;
    case textio::enums::StrategyMode::LineReader:
      break;
  }
  return table_layout::Lines;
}

char const* name_of(table_layout const layout) noexcept {
  switch (layout) {
    case table_layout::Delimited:
      return "delimited";
    case table_layout::SpaceAligned:
      return "space-aligned";
    case table_layout::FixedWidth:
      return "fixed-width";
    case table_layout::Lines:
      break;
  }
  return "lines";
}

char const* name_of(line_role const role) noexcept {
  switch (role) {
    case line_role::Title:
      return "title";
    case line_role::Comment:
      return "comment";
    case line_role::Blank:
      return "blank";
    case line_role::Names:
      return "names";
    case line_role::Units:
      return "units";
    case line_role::Ruler:
      return "ruler";
    case line_role::Separator:
      return "separator";
    case line_role::Footer:
      break;
  }
  return "footer";
}

char const* name_of(value_type const type) noexcept {
  switch (type) {
    case value_type::Empty:
      return "empty";
    case value_type::Integer:
      return "integer";
    case value_type::Real:
      return "real";
    case value_type::ComplexNumber:
      return "complex";
    case value_type::Boolean:
      return "boolean";
    case value_type::Date:
      return "date";
    case value_type::DateTime:
      return "date-time";
    case value_type::Duration:
      return "duration";
    case value_type::Hexadecimal:
      return "hexadecimal";
    case value_type::Binary:
      return "binary";
    case value_type::Text:
      break;
  }
  return "text";
}

char const* name_of(date_order const order) noexcept {
  switch (order) {
    case date_order::None:
      return "none";
    case date_order::YearFirst:
      return "year-first";
    case date_order::DayFirst:
      return "day-first";
    case date_order::MonthFirst:
      return "month-first";
    case date_order::Ambiguous:
      break;
  }
  return "ambiguous";
}

}  // namespace textimport
