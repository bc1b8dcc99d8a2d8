// SPDX-License-Identifier: MIT
//
// How the dates of a column are written: only what fits every value is left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/format/column.hpp"

namespace textimport::analysis {

class DateEvidence {
 public:
  /// Takes note of one date, with a time or without, blanks and quotes taken off.
  void add(std::u16string_view date);

  /// The order of day, month and year; the pattern, where all dates have one and the order is
  /// known; and the zone, where all name the same.
  [[nodiscard]] DateFormat format() const;

 private:
  enum class Kind : std::uint8_t { Digits, Letters, Other };

  /// A run of digits or letters, or one other character, in every date the same but for its length.
  struct Token {
    Kind kind = Kind::Other;
    std::size_t shortest = 1;
    std::size_t longest = 1;
    std::u16string text;  ///< of the first date
  };

  static Token first_token(std::u16string_view text);
  void add_tokens(std::u16string_view date);
  void add_order(std::u16string_view day);
  void add_zone(std::u16string_view date);
  [[nodiscard]] DateOrder order() const noexcept;
  [[nodiscard]] std::u16string roles() const;
  [[nodiscard]] std::u16string pattern() const;
  [[nodiscard]] std::u16string pattern_of_word(Token const& token) const;
  static std::u16string pattern_of_number(Token const& token, char16_t role);

  std::vector<Token> tokens_;
  bool is_uniform_ = true;  ///< all dates have these tokens
  std::u16string first_;
  std::u16string last_;
  std::u16string zone_;
  bool is_numeric_ = false;  ///< a value without a month's name was met
  bool year_is_first_ = false;
  bool day_is_first_ = false;    ///< a first number above 12
  bool month_is_first_ = false;  ///< a second number above 12
};

}  // namespace textimport::analysis
