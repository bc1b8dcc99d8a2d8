// SPDX-License-Identifier: MIT
//
// Reading a text that ends at its length or at its first end mark, whichever comes first, and
// sets of code units. Every scanner reads through these few functions, so that none of them looks
// past the end.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "text_format_detection/model/options.hpp"

namespace textio::model {

/// The code unit at `pos`; positions past the end read as the end mark.
[[nodiscard]] inline char16_t unit_at(std::u16string_view const text,
                                      std::size_t const pos) noexcept {
  return pos < text.size() ? text[pos] : end_mark;
}

[[nodiscard]] inline bool at_end(std::u16string_view const text, std::size_t const pos) noexcept {
  return unit_at(text, pos) == end_mark;
}

/// A set of code units. Never holds the end mark unless it is added with `with_end_mark`.
class UnitSet {
 public:
  explicit UnitSet(std::u16string_view const members) {
    for (char16_t const unit : members) {
      if (unit != end_mark) {
        insert(unit);
      }
    }
  }

  /// The same set and the end mark, for scans that stop there anyway.
  [[nodiscard]] UnitSet with_end_mark() && {
    insert(end_mark);
    return std::move(*this);
  }

  [[nodiscard]] bool contains(char16_t const unit) const noexcept {
    return unit < ascii_.size() ? ascii_[unit] : others_.find(unit) != std::u16string::npos;
  }

 private:
  void insert(char16_t const unit) {
    if (unit < ascii_.size()) {
      ascii_[unit] = true;
    } else if (!contains(unit)) {
      others_.push_back(unit);
    }
  }

  std::array<bool, 128> ascii_{};
  std::u16string others_;
};

/// The first position from `pos` on whose unit is not in the set; at most the text's length.
[[nodiscard]] inline std::size_t skip_members(std::u16string_view const text, std::size_t pos,
                                              UnitSet const& set) noexcept {
  while (pos < text.size() && set.contains(text[pos])) {
    ++pos;
  }
  return pos;
}

/// The first position from `pos` on whose unit is in the set; at most the text's length.
[[nodiscard]] inline std::size_t find_member(std::u16string_view const text, std::size_t pos,
                                             UnitSet const& set) noexcept {
  while (pos < text.size() && !set.contains(text[pos])) {
    ++pos;
  }
  return pos;
}

/// True when every unit of the text is in the set; true for an empty text.
[[nodiscard]] inline bool consists_of(std::u16string_view const text, UnitSet const& set) noexcept {
  return skip_members(text, 0, set) == text.size();
}

/// The length of the text without the members of the set at its end.
[[nodiscard]] inline std::size_t length_without_trailing(std::u16string_view const text,
                                                         UnitSet const& set) noexcept {
  std::size_t length = text.size();
  while (length > 0 && set.contains(text[length - 1])) {
    --length;
  }
  return length;
}

/// The text without the members of the set at its end and at its start.
[[nodiscard]] inline std::u16string_view trimmed(std::u16string_view text,
                                                 UnitSet const& set) noexcept {
  text = text.substr(0, length_without_trailing(text, set));
  return text.substr(skip_members(text, 0, set));
}

/// The position of the first `unit` from `pos` on; the end of the text when there is none before.
[[nodiscard]] inline std::size_t find_unit(std::u16string_view const text, std::size_t pos,
                                           char16_t const unit) noexcept {
  while (!at_end(text, pos) && text[pos] != unit) {
    ++pos;
  }
  return pos;
}

/// The sum of two counts, or the largest count when it would not fit.
[[nodiscard]] constexpr std::size_t saturated_sum(std::size_t const a,
                                                  std::size_t const b) noexcept {
  return a > unknown_count - b ? unknown_count : a + b;
}

}  // namespace textio::model
