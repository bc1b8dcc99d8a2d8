// SPDX-License-Identifier: MIT
//
// The words of the survey's enumerations, and the layout that the library's readings have in it.
#include "text_import/survey/column_findings.hpp"
#include "text_import/survey/survey.hpp"

namespace textimport {

Layout layout_of(textio::enums::StrategyMode const mode) noexcept {
  switch (mode) {
    case textio::enums::StrategyMode::Delimited:
      return Layout::Delimited;
    case textio::enums::StrategyMode::SpaceAligned:
      return Layout::SpaceAligned;
    case textio::enums::StrategyMode::FixedWidth:
      return Layout::FixedWidth;
    case textio::enums::StrategyMode::LineReader:
      break;
  }
  return Layout::Lines;
}

char const* name_of(Layout const layout) noexcept {
  switch (layout) {
    case Layout::Delimited:
      return "delimited";
    case Layout::SpaceAligned:
      return "space-aligned";
    case Layout::FixedWidth:
      return "fixed-width";
    case Layout::Lines:
      break;
  }
  return "lines";
}

char const* name_of(LineRole const role) noexcept {
  switch (role) {
    case LineRole::Title:
      return "title";
    case LineRole::Comment:
      return "comment";
    case LineRole::Blank:
      return "blank";
    case LineRole::Names:
      return "names";
    case LineRole::Units:
      return "units";
    case LineRole::Ruler:
      return "ruler";
    case LineRole::Separator:
      return "separator";
    case LineRole::Footer:
      break;
  }
  return "footer";
}

char const* name_of(ValueType const type) noexcept {
  switch (type) {
    case ValueType::Empty:
      return "empty";
    case ValueType::Integer:
      return "integer";
    case ValueType::Real:
      return "real";
    case ValueType::ComplexNumber:
      return "complex";
    case ValueType::Boolean:
      return "boolean";
    case ValueType::Date:
      return "date";
    case ValueType::DateTime:
      return "date-time";
    case ValueType::Duration:
      return "duration";
    case ValueType::Hexadecimal:
      return "hexadecimal";
    case ValueType::Binary:
      return "binary";
    case ValueType::Text:
      break;
  }
  return "text";
}

char const* name_of(DateOrder const order) noexcept {
  switch (order) {
    case DateOrder::None:
      return "none";
    case DateOrder::YearFirst:
      return "year-first";
    case DateOrder::DayFirst:
      return "day-first";
    case DateOrder::MonthFirst:
      return "month-first";
    case DateOrder::Ambiguous:
      break;
  }
  return "ambiguous";
}

}  // namespace textimport
