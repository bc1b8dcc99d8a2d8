// SPDX-License-Identifier: MIT
//
// One pass, in which a table says of most characters all that matters: analyses spend more of their
// time here than anywhere else.
#include "text_import/analysis/values/text_shape_internal.hpp"

#include <array>
#include <cstddef>
#include <cstdint>

namespace textimport::analysis {

namespace {

using view = std::u16string_view;

// What a character says of the text that it stands in.
constexpr std::uint8_t no_number = 1;   ///< it stands in no number
constexpr std::uint8_t no_group = 2;    ///< it is neither digit nor point
constexpr std::uint8_t is_special = 4;  ///< it has to be looked at, some with what is behind it

constexpr std::uint8_t kind_of_ascii(char16_t const c) {
  constexpr view special = u"\t .:;,|()[]{}";
  constexpr view in_numbers = u"0123456789.+-dDeE";
  constexpr view in_groups = u"0123456789.";
  bool const is_control = c < u' ' && c != u'\n' && c != u'\r';
  return static_cast<std::uint8_t>((in_numbers.find(c) == view::npos ? no_number : 0U) |
                                   (in_groups.find(c) == view::npos ? no_group : 0U) |
                                   (is_control || special.find(c) != view::npos ? is_special : 0U));
}

constexpr std::array<std::uint8_t, 128> ascii_kinds = [] {
  std::array<std::uint8_t, 128> kinds{};
  for (std::size_t c = 0; c < kinds.size(); ++c) {
    kinds[c] = kind_of_ascii(static_cast<char16_t>(c));
  }
  return kinds;
}();

/// What stands in a text, met from left to right.
class TextScan {
 public:
  TextScan(view const text, char16_t const quote, view const ordinary) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
      char16_t const c = text[i];
      unsigned const kind = c < ascii_kinds.size() ? ascii_kinds[c] : no_number | no_group;
      kinds_ |= kind;
      num_quotes_ += c == quote ? 1U : 0U;
      if ((kind & is_special) != 0 && ordinary.find(c) == view::npos) {
        take_special(c, text.substr(i + 1));
      }
    }
  }

  [[nodiscard]] bool has_blank() const noexcept { return has_blank_; }

  [[nodiscard]] bool is_address() const noexcept { return has_scheme_ && !has_blank_; }

  /// What a cut at the wrong place leaves.
  [[nodiscard]] bool is_broken() const noexcept {
    return has_gap_ || has_foreign_delimiter_ || has_odd_brackets_ || depth_ != 0 ||
           is_run_together() || num_quotes_ % 2 != 0;
  }

 private:
  /// Characters that usually stand between values are never alone inside one. A comma in front of
  /// a blank belongs to a sentence, and so does a semicolon there or at the end.
  void take_special(char16_t const c, view const rest) noexcept {
    switch (c) {
      case u' ':
        has_blank_ = true;
        has_gap_ = has_gap_ || rest.starts_with(u"  ");
        break;
      case u'.':
        ++num_points_;
        break;
      case u':':
        has_scheme_ = has_scheme_ || rest.starts_with(u"//");
        break;
      case u';':
        has_foreign_delimiter_ =
            has_foreign_delimiter_ || (!rest.empty() && !rest.starts_with(u' '));
        break;
      case u',':
        has_foreign_delimiter_ = has_foreign_delimiter_ || !rest.starts_with(u' ');
        break;
      case u'(':
      case u'[':
      case u'{':
        ++depth_;
        break;
      case u')':
      case u']':
      case u'}':
        --depth_;
        has_odd_brackets_ = has_odd_brackets_ || depth_ < 0;
        break;
      default:  // a tab, a bar, a control character
        has_foreign_delimiter_ = true;
        break;
    }
  }

  /// Numbers such as "0.0528-1.5E-3" or "12.50.3": the characters of numbers, but no number, and no
  /// row of plain groups such as an address or a version.
  [[nodiscard]] bool is_run_together() const noexcept {
    bool const is_numeric = (kinds_ & no_number) == 0;
    bool const only_groups = (kinds_ & no_group) == 0;
    return is_numeric && num_points_ >= 2 && !(only_groups && num_points_ <= 3);
  }

  unsigned kinds_ = 0;  // of all characters
  bool has_blank_ = false;
  bool has_gap_ = false;  // three blanks in a row
  bool has_scheme_ = false;
  bool has_foreign_delimiter_ = false;
  bool has_odd_brackets_ = false;  // one closes before it opens
  int depth_ = 0;
  std::size_t num_points_ = 0;
  std::size_t num_quotes_ = 0;
};

}  // namespace

ValueShape shape_of_text(view const text, char16_t const quote, view const ordinary) noexcept {
  TextScan const scan(text, quote, ordinary);
  if (scan.is_address()) {
    return ValueShape::Word;
  }
  if (scan.is_broken()) {
    return ValueShape::Broken;
  }
  return scan.has_blank() ? ValueShape::Phrase : ValueShape::Word;
}

}  // namespace textimport::analysis
