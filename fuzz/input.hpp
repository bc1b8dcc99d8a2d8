// SPDX-License-Identifier: MIT
//
// What a fuzz target makes of its bytes: the first byte says how many of the next ones choose
// options, all that follow are the text. Where the choosing bytes run out they are 0, and 0 chooses
// the default, so that a byte 0 and a text is a seed. A byte of the text is a code unit; 0xFE
// stands for the unit in the two bytes behind it, and 0xFF for the end mark.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text_format_detection/model/field.hpp"
#include "text_format_detection/model/options.hpp"
#include "text_format_detection/platform/type_analyzer_options.hpp"

namespace fuzz {

class Input {
 public:
  Input(std::uint8_t const* const data, std::size_t const size) : text_(data, size) {
    std::size_t const count = size == 0 ? 0 : 1 + std::min<std::size_t>(data[0], size - 1);
    choices_ = text_.first(count).subspan(count == 0 ? 0 : 1);
    text_ = text_.subspan(count);
  }

  /// The next choosing byte.
  unsigned byte() {
    unsigned const value = choices_.empty() ? 0 : choices_.front();
    choices_ = choices_.subspan(choices_.empty() ? 0 : 1);
    return value;
  }

  unsigned below(unsigned const limit) { return byte() % limit; }

  bool flag() { return below(2) != 0; }

  /// One of the values from the first up to and including `last`.
  template <class Enum>
  Enum choice(Enum const last) {
    return static_cast<Enum>(below(static_cast<unsigned>(last) + 1));
  }

  char16_t unit() { return to_unit(byte()); }

  std::u16string string() {
    std::u16string result(below(4), u'\0');
    std::ranges::generate(result, [this] { return unit(); });
    return result;
  }

  std::vector<std::u16string> strings() {
    std::vector<std::u16string> result(below(4));
    std::ranges::generate(result, [this] { return string(); });
    return result;
  }

  /// The bytes behind the choosing ones.
  [[nodiscard]] std::span<std::uint8_t const> bytes() const { return text_; }

  /// The same as text.
  [[nodiscard]] std::u16string text() const {
    std::u16string result;
    for (std::size_t i = 0; i < text_.size(); ++i) {
      bool const is_wide = text_[i] == 0xFE && i + 2 < text_.size();
      result +=
          is_wide ? static_cast<char16_t>(text_[i + 1] | text_[i + 2] << 8U) : to_unit(text_[i]);
      i += is_wide ? 2 : 0;
    }
    return result;
  }

 private:
  static char16_t to_unit(unsigned const byte) {
    return byte == 0xFF ? textio::end_mark : static_cast<char16_t>(byte);
  }

  std::span<std::uint8_t const> choices_;
  std::span<std::uint8_t const> text_;
};

/// A copy of a text in a block of exactly its size, so that a sanitizer sees each step outside.
class Placed {
 public:
  explicit Placed(std::u16string_view const text) : units_(text.begin(), text.end()) {}

  [[nodiscard]] textio::Field field() const { return {units_.data(), units_.size()}; }

  [[nodiscard]] std::u16string_view view() const { return field().view(); }

 private:
  std::vector<char16_t> units_;
};

/// A number that is most often small or unknown.
inline std::size_t draw_count(Input& in) {
  unsigned const byte = in.byte();
  return byte == 0 ? textio::unknown_count : byte == 255 ? textio::unknown_count - 1 : byte - 1;
}

inline textio::parser::options draw_options(Input& in) {
  namespace enums = textio::enums;
  textio::parser::options options;
  auto const draw = [&in](auto& member, auto const& how) {
    if (in.flag()) {
      member = how();
    }
  };
  draw(options.delimiters, [&] { return in.strings(); });
  draw(options.line_endings, [&] { return in.strings(); });
  draw(options.comment_style, [&] { return in.strings(); });
  draw(options.whitespace, [&] { return in.string(); });
  draw(options.thousands_separator, [&] { return in.string(); });
  draw(options.quote_characters, [&] { return in.string(); });
  draw(options.decimal_separator, [&] { return in.unit(); });
  draw(options.column_widths, [&] {
    std::vector<std::size_t> widths(in.below(6));
    std::ranges::generate(widths, [&] { return draw_count(in); });
    return widths;
  });
  options.layout = in.choice(enums::Layout::FixedWidth);
  options.header_lines = draw_count(in);
  options.detect_header_lines = !in.flag();
  options.num_variables = in.byte();
  options.ignore_num_variables = !in.flag();
  options.consecutive_delimiters_rule = in.choice(enums::ConsecutiveDelimitersRule::Error);
  options.leading_delimiters_rule = in.choice(enums::LeadingDelimitersRule::Error);
  options.trailing_delimiters_rule = in.choice(enums::TrailingDelimitersRule::Error);
  options.empty_lines = in.choice(enums::EmptyLineRule::Error);
  options.partial_field_rule = static_cast<enums::PartialFieldRule>(in.below(7));
  return options;
}

inline ostrel::io::text::typedetection::TypeAnalyzerOptions draw_type_options(Input& in) {
  ostrel::io::text::typedetection::TypeAnalyzerOptions options;
  unsigned const flags = in.byte();
  options.trim_whitespace = (flags & 1U) == 0;
  options.use_missing_values = (flags & 2U) != 0;
  options.replace_characters = (flags & 4U) != 0;
  options.remove_characters = (flags & 8U) != 0;
  options.embedded_numbers = (flags & 16U) != 0;
  options.decimal_digit_limit_set = (flags & 32U) != 0;
  options.decimal_digit_limit = options.decimal_digit_limit_set ? in.byte() : 0;
  if ((flags & 64U) != 0) {
    options.whitespace = in.string();
    options.leading_character = in.unit();
    options.missing_values = in.strings();
    options.first_replacement_set = in.string();
    options.first_replacement = in.unit();
    options.second_replacement_set = in.string();
    options.second_replacement = in.unit();
    options.removal_set = in.string();
    options.exponent_characters = in.string();
  }
  return options;
}

}  // namespace fuzz
