// SPDX-License-Identifier: MIT

#include "text_import/format/json_writer_internal.hpp"

#include "text_import/format/utf.hpp"

namespace textimport {

namespace {

/// Whether a byte stands for itself, in both layouts.
constexpr bool is_ordinary(char const byte) {
  return byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\';
}

/// The letter behind a backslash that stands for a character; 0 for none.
constexpr char short_escape(char32_t const c) {
  switch (c) {
    case '"':
    case '\\':
      return static_cast<char>(c);
    case '\b':
      return 'b';
    case '\t':
      return 't';
    case '\n':
      return 'n';
    case '\f':
      return 'f';
    case '\r':
      return 'r';
    default:
      return 0;
  }
}

void append_unit(std::string& text, char16_t const unit) {
  constexpr std::string_view digits = "0123456789abcdef";
  text += "\\u";
  for (unsigned const shift : {12U, 8U, 4U, 0U}) {
    text += digits[(unit >> shift) & 0x0FU];
  }
}

}  // namespace

void JsonWriter::begin_object() {
  begin('{');
}

void JsonWriter::begin_list(List const list) {
  begin('[');
  is_in_line_ = list == List::OnOneLine;
}

void JsonWriter::key(std::string_view const name) {
  start_item();
  text_.append(1, '"').append(name).append(layout_ == Layout::OneLine ? "\":" : "\": ");
  front_ = Front::Nothing;
}

void JsonWriter::value(std::nullptr_t) {
  append_word("null");
}

void JsonWriter::value(double const number) {
  constexpr std::size_t longest = 32;  // a sign, 15 digits, the point and at most 15 behind it
  std::array<char, longest> digits;
  char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed)
          .ptr;
  std::string_view const word(digits.data(), end);
  append_word(word);
  if (word.find('.') == std::string_view::npos) {
    text_ += ".0";
  }
}

void JsonWriter::value(std::string_view const text) {
  start_item();
  text_ += '"';
  for (std::size_t pos = 0; pos < text.size();) {
    std::size_t const start = pos;
    while (pos < text.size() && is_ordinary(text[pos])) {
      ++pos;
    }
    text_.append(text, start, pos - start);
    if (pos < text.size()) {
      append_character(next_character(text, pos).value_or(U'\uFFFD'));
    }
  }
  text_ += '"';
}

void JsonWriter::start_item() {
  if (front_ == Front::Item) {
    text_ += ',';
  }
  if (front_ != Front::Nothing && layout_ == Layout::Indented) {
    if (!is_in_line_) {
      break_line();
    } else if (front_ == Front::Item) {
      text_ += ' ';
    }
  }
  front_ = Front::Item;
}

void JsonWriter::begin(char const bracket) {
  start_item();
  text_ += bracket;
  ++depth_;
  front_ = Front::Beginning;
}

void JsonWriter::end(char const bracket) {
  --depth_;
  if (front_ == Front::Item && layout_ == Layout::Indented && !is_in_line_) {
    break_line();
  }
  text_ += bracket;
  front_ = Front::Item;
  is_in_line_ = false;
}

void JsonWriter::break_line() {
  text_.append(1, '\n').append(2 * depth_, ' ');
}

void JsonWriter::append_word(std::string_view const word) {
  start_item();
  text_ += word;
}

void JsonWriter::append_character(char32_t const c) {
  bool const is_one_line = layout_ == Layout::OneLine;
  if (char const letter = short_escape(c); letter != 0) {
    text_.append(1, '\\').append(1, letter);
  } else if (c >= ' ' && !is_one_line) {
    append_utf8(text_, c);
  } else {
    std::u16string units;
    append_utf16(units, c);
    for (char16_t const unit : units) {
      append_unit(text_, unit);
    }
  }
}

}  // namespace textimport
