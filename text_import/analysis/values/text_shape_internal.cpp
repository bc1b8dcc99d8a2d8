// SPDX-License-Identifier: MIT
#include "text_import/analysis/values/text_shape_internal.hpp"

#include <cstddef>

#include "text_format_detection/platform/ascii_internal.hpp"

namespace textimport::analysis {

namespace {

using textio::platform::is_digit;
using textio::platform::is_letter;
using textio::platform::to_lower;
using view = std::u16string_view;

/// What stands in a text, met from left to right.
class TextScan {
 public:
  TextScan(view const text, char16_t const quote) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i) {
      char16_t const c = text[i];
      if (is_letter(c)) {
        is_numeric_ = is_numeric_ && (to_lower(c) == u'd' || to_lower(c) == u'e');
        only_groups_ = false;
      } else if (!is_digit(c)) {
        take_sign(c, text.substr(i + 1));
      }
      num_quotes_ += c == quote ? 1U : 0U;
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
  void take_sign(char16_t const c, view const rest) noexcept {
    bool const before_blank = rest.starts_with(u' ');
    has_blank_ = has_blank_ || c == u' ';
    has_gap_ = has_gap_ || (c == u' ' && rest.starts_with(u"  "));
    has_scheme_ = has_scheme_ || (c == u':' && rest.starts_with(u"//"));
    // Characters that usually stand between values are never alone inside one. A comma in front of
    // a blank belongs to a sentence, and so does a semicolon there or at the end.
    has_foreign_delimiter_ =
        has_foreign_delimiter_ || c == u'\t' || c == u'|' || (c < 32 && c != u'\n' && c != u'\r') ||
        (c == u';' && !rest.empty() && !before_blank) || (c == u',' && !before_blank);
    take_bracket(c);
    num_points_ += c == u'.' ? 1U : 0U;
    only_groups_ = only_groups_ && c == u'.';
    is_numeric_ = is_numeric_ && (c == u'.' || c == u'+' || c == u'-');
  }

  void take_bracket(char16_t const c) noexcept {
    if (c == u'(' || c == u'[' || c == u'{') {
      ++depth_;
    } else if (c == u')' || c == u']' || c == u'}') {
      --depth_;
      has_odd_brackets_ = has_odd_brackets_ || depth_ < 0;
    }
  }

  /// Numbers such as "0.0528-1.5E-3" or "12.50.3": the characters of numbers, but no number, and no
  /// row of plain groups such as an address or a version.
  [[nodiscard]] bool is_run_together() const noexcept {
    return is_numeric_ && num_points_ >= 2 && !(only_groups_ && num_points_ <= 3);
  }

  bool has_blank_ = false;
  bool has_gap_ = false;  // three blanks in a row
  bool has_scheme_ = false;
  bool has_foreign_delimiter_ = false;
  bool has_odd_brackets_ = false;  // one closes before it opens
  bool is_numeric_ = true;
  bool only_groups_ = true;
  int depth_ = 0;
  std::size_t num_points_ = 0;
  std::size_t num_quotes_ = 0;
};

}  // namespace

ValueShape shape_of_text(view const text, char16_t const quote) noexcept {
  TextScan const scan(text, quote);
  if (scan.is_address()) {
    return ValueShape::Word;
  }
  if (scan.is_broken()) {
    return ValueShape::Broken;
  }
  return scan.has_blank() ? ValueShape::Phrase : ValueShape::Word;
}

}  // namespace textimport::analysis
