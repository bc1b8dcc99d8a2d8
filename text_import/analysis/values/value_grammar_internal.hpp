// SPDX-License-Identifier: MIT
//
// What single values look like, as far as people write them and as far as the caller says how they
// are written. The one place where the analysis judges a value.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/analysis/values/number_scan_internal.hpp"
#include "text_import/analysis/values/text_internal.hpp"
#include "text_import/analysis/values/value_shape_internal.hpp"
#include "text_import/format/request.hpp"

namespace textimport::analysis {

/// Made once for a reading, then asked for each of its fields. What the caller says of values:
///
/// - A decimal mark is the only one; a thousands mark likewise. Where only one of them is given,
///   the other is any of the usual ones but that. Digits stand in groups of three, or of two in the
///   Indian manner, whoever names the mark: with "." between thousands, 5.1.2024 is still a date.
/// - Words for missing values are looked for first, so that a number may be one of them. NaN is the
///   number of that name when it is none of them.
/// - A date pattern is asked before the forms of numbers and durations: with yyyyMMdd, 20240105 is
///   a date. A pattern of a date alone lets a time of day stand beside it.
class ValueGrammar {
 public:
  /// `quote` 0: there are no quotes. `ordinary`: characters that are no delimiters, though others
  /// like them usually are.
  ValueGrammar(char16_t quote, ValueRequest const& request, std::u16string ordinary = {});

  /// Looks at one field. Linear in the text.
  [[nodiscard]] ValueLook look_at(std::u16string_view field) const;

  /// The same for those who ask for the type alone: every text is a Word, and is not looked through
  /// for what a cut at the wrong place leaves. A number may have a remark behind it: "12.3 p".
  [[nodiscard]] ValueLook look_at_type(std::u16string_view field) const;

  /// What is looked at: the field without blanks around it, one pair of quotes and the leading
  /// character. A view into the field.
  [[nodiscard]] std::u16string_view value_of(std::u16string_view field) const noexcept;

  /// Whether the caller says what the marks of numbers are, as far as a number may have several.
  [[nodiscard]] bool marks_are_given() const noexcept { return marks_are_given_; }

 private:
  [[nodiscard]] std::u16string_view stripped(std::u16string_view const text) const noexcept {
    return keeps_blanks_ ? text : trimmed(text);
  }

  [[nodiscard]] ValueLook look_inside(std::u16string_view text) const;
  [[nodiscard]] ValueLook look_behind_flag(std::u16string_view text) const;
  [[nodiscard]] ValueShape shape_of_word(std::u16string_view text) const;
  [[nodiscard]] ValueShape shape_of_no_number(std::u16string_view text) const;
  [[nodiscard]] ValueShape shape_by_pattern(std::u16string_view text) const;

  char16_t quote_;
  bool marks_are_given_;
  std::u16string ordinary_;
  NumberRules numbers_;
  std::optional<std::vector<std::u16string>> missing_words_;
  std::u16string date_pattern_;
  ValueShape shape_of_pattern_ = ValueShape::Date;  ///< of what the pattern takes
  char16_t leading_character_;
  bool embedded_numbers_;
  bool keeps_blanks_;
};

}  // namespace textimport::analysis
