// SPDX-License-Identifier: MIT
//
// Does a delimiter or a line ending begin at a position, and how long is it? A matcher answers
// that for a list of strings, in one of two modes: the common list of one one-unit string is
// compared as a unit, any other list string by string.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text_format_detection/export.hpp"

namespace textio {

/// A list of strings to be recognised in a text. Immutable, and so shared freely between threads.
///
/// Nothing is matched at or across the end mark: a string that holds it matches nowhere.
class TFD_API DelimiterMatcher {
 public:
  /// A list of exactly one string of exactly one code unit.
  struct SingleUnit {
    char16_t unit;

    /// 1 when the unit stands at `pos`, else 0.
    [[nodiscard]] std::size_t length_at(std::u16string_view const text,
                                        std::size_t const pos) const noexcept {
      return pos < text.size() && text[pos] == unit && unit != 0xFFFF ? 1 : 0;
    }
  };

  /// Any other list, the empty one included.
  class StringList {
   public:
    TFD_LOCAL explicit StringList(std::vector<std::u16string> const& strings);

    /// The length of the first string of the list that stands at `pos` in full, else 0.
    [[nodiscard]] std::size_t length_at(std::u16string_view const text,
                                        std::size_t const pos) const noexcept {
      if (pos >= text.size() || text[pos] > highest_first_unit_ || text[pos] < lowest_first_unit_) {
        return 0;
      }
      bool const is_lone = text[pos] == lone_units_[0] || text[pos] == lone_units_[1];
      return is_lone ? 1 : length_of_match(text.substr(pos));
    }

    /// The first code unit of each string, once, in list order.
    [[nodiscard]] std::u16string const& first_units() const noexcept { return first_units_; }

   private:
    TFD_LOCAL void add(std::u16string const& string);

    /// The length of the first string of the list that the text (not empty) begins with, else 0.
    [[nodiscard]] std::size_t length_of_match(std::u16string_view text) const noexcept;

    std::vector<std::u16string> strings_;  // in list order
    std::u16string first_units_;
    char16_t lowest_first_unit_ = 0xFFFF;  // no string begins with a code unit below this one
    char16_t highest_first_unit_ = 0;      // nor with one above this
    // Up to two units at which a string of that unit alone matches, the most common match.
    std::array<char16_t, 2> lone_units_{0xFFFF, 0xFFFF};
  };

  using Mode = std::variant<SingleUnit, StringList>;

  explicit DelimiterMatcher(std::vector<std::u16string> const& strings);

  /// The mode, for scans that choose their code by it once.
  [[nodiscard]] Mode const& mode() const noexcept { return mode_; }

  /// The length in code units of the match at `pos`, or 0. Positions past the end match nothing.
  [[nodiscard]] std::size_t length_at(std::u16string_view text, std::size_t pos) const noexcept;

  /// The first code unit of every string, once each, in list order.
  [[nodiscard]] std::u16string first_units() const;

 private:
  Mode mode_;
};

/// A shared matcher for a list of strings. An empty string, as an empty list, matches nowhere.
/// Throws std::bad_alloc, nothing else.
[[nodiscard]] TFD_API std::shared_ptr<DelimiterMatcher const> get_or_create_delim(
    std::vector<std::u16string> const& strings);

}  // namespace textio
