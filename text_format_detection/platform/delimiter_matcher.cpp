// SPDX-License-Identifier: MIT
//
// Building matchers, and the test of a list of strings: the range and then the set of first units
// turn most positions away before any string is compared, and most matches are a single unit.
#include "text_format_detection/platform/delimiter_matcher.hpp"

#include <algorithm>

#include "text_format_detection/model/options.hpp"

namespace textio {

namespace {

DelimiterMatcher::Mode make_mode(std::vector<std::u16string> const& strings) {
  if (strings.size() == 1 && strings.front().size() == 1) {
    return DelimiterMatcher::SingleUnit{strings.front().front()};
  }
  return DelimiterMatcher::StringList(strings);
}

}  // namespace

DelimiterMatcher::StringList::StringList(std::vector<std::u16string> const& strings) {
  strings_.reserve(strings.size());
  for (std::u16string const& string : strings) {
    if (!string.empty() && string.find(end_mark) == std::u16string::npos) {
      add(string);
    }
  }
}

void DelimiterMatcher::StringList::add(std::u16string const& string) {
  strings_.push_back(string);
  char16_t const first_unit = string.front();
  if (first_units_.find(first_unit) == std::u16string::npos) {
    first_units_.push_back(first_unit);
    // The first of its unit that is alone matches before any longer string of that unit can.
    auto const free = std::find(lone_units_.begin(), lone_units_.end(), end_mark);
    if (string.size() == 1 && free != lone_units_.end()) {
      *free = first_unit;
    }
  }
  lowest_first_unit_ = std::min(lowest_first_unit_, first_unit);
  highest_first_unit_ = std::max(highest_first_unit_, first_unit);
}

std::size_t DelimiterMatcher::StringList::length_of_match(
    std::u16string_view const text) const noexcept {
  if (first_units_.find(text.front()) == std::u16string::npos) {
    return 0;
  }
  for (std::u16string const& string : strings_) {
    if (string.front() == text.front() && (string.size() == 1 || text.starts_with(string))) {
      return string.size();
    }
  }
  return 0;
}

DelimiterMatcher::DelimiterMatcher(std::vector<std::u16string> const& strings)
    : mode_(make_mode(strings)) {}

std::size_t DelimiterMatcher::length_at(std::u16string_view const text,
                                        std::size_t const pos) const noexcept {
  if (auto const* const single = std::get_if<SingleUnit>(&mode_)) {
    return single->length_at(text, pos);
  }
  return std::get<StringList>(mode_).length_at(text, pos);
}

std::u16string DelimiterMatcher::first_units() const {
  if (auto const* const single = std::get_if<SingleUnit>(&mode_)) {
    return {single->unit};
  }
  return std::get<StringList>(mode_).first_units();
}

std::shared_ptr<DelimiterMatcher const> get_or_create_delim(
    std::vector<std::u16string> const& strings) {
  return std::make_shared<DelimiterMatcher const>(strings);
}

}  // namespace textio
