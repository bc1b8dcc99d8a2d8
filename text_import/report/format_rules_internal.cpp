// SPDX-License-Identifier: MIT
#include "text_import/report/format_rules_internal.hpp"

#include <string_view>
#include <vector>

#include <fmt/format.h>

namespace textimport::reporting {

namespace {

using textio::enums::ConsecutiveDelimitersRule;
using textio::enums::EmptyLineRule;
using textio::enums::LeadingDelimitersRule;
using textio::enums::PartialFieldRule;
using textio::enums::TrailingDelimitersRule;

std::string_view partial_fields_text(PartialFieldRule const rule) {
  switch (rule) {
    case PartialFieldRule::DropField:
      return "a value that its line cuts short is dropped";
    case PartialFieldRule::DropRecord:
      return "a record that its line cuts short is dropped";
    case PartialFieldRule::FillMissing:
      return "a value that its line cuts short is missing";
    case PartialFieldRule::Wrap:
      return "a value that its line cuts short goes on in the next line";
    case PartialFieldRule::Keep:
    case PartialFieldRule::Error:
      break;
  }
  return "";
}

}  // namespace

std::string rules_text(LayoutFormat const& layout) {
  std::vector<std::string_view> texts;
  if (layout.layout == Layout::Delimited) {
    if (layout.consecutive_delimiters == ConsecutiveDelimitersRule::Join) {
      texts.emplace_back("a run of delimiters counts as one");
    }
    if (layout.leading_delimiters == LeadingDelimitersRule::Ignore) {
      texts.emplace_back("delimiters at the start of a line are skipped");
    }
    if (layout.trailing_delimiters == TrailingDelimitersRule::Ignore) {
      texts.emplace_back("delimiters at the end of a line are dropped");
    }
  }
  if (layout.empty_lines == EmptyLineRule::Read) {
    texts.emplace_back("empty lines are records");
  }
  auto const partial = partial_fields_text(layout.partial_fields);
  if (layout.layout == Layout::FixedWidth && !partial.empty()) {
    texts.push_back(partial);
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

}  // namespace textimport::reporting
