// SPDX-License-Identifier: MIT
#include "text_import/report/broken_rules.hpp"

namespace textimport {

std::string_view meaning_of(BrokenRule const rule) noexcept {
  switch (rule) {
    case BrokenRule::ConsecutiveDelimiters:
      return "a delimiter directly follows another one";
    case BrokenRule::LeadingDelimiters:
      return "the record begins with a delimiter";
    case BrokenRule::TrailingDelimiters:
      return "the record ends with a delimiter";
    case BrokenRule::EmptyLine:
      return "the line is empty";
    case BrokenRule::PartialField:
      break;
  }
  return "the line ends inside a column";
}

}  // namespace textimport
