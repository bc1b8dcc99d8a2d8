// SPDX-License-Identifier: MIT
//
// Writes JSON from front to back into one text, without a tree of values in between. Commas, line
// breaks and escapes are the writer's business; that each key has its value and each beginning its
// end is the caller's.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace textimport {

class JsonWriter {
 public:
  enum class Layout : std::uint8_t {
    OneLine,   ///< no blanks, and everything beyond ASCII escaped
    Indented,  ///< by two blanks a level, UTF-8
  };

  /// How a list stands where the layout is indented.
  enum class List : std::uint8_t {
    OnOneLine,  ///< it holds neither objects nor lists
    OnLines,    ///< each item on a line of its own
  };

  explicit JsonWriter(Layout const layout = Layout::OneLine) noexcept : layout_(layout) {}

  void begin_object();

  void end_object() { end('}'); }

  void begin_list(List list = List::OnLines);

  void end_list() { end(']'); }

  /// The name of the member whose value comes next, of characters that need no escape.
  void key(std::string_view name);

  void value(std::nullptr_t /*none*/);

  void value(std::same_as<bool> auto const truth) { append_word(truth ? "true" : "false"); }

  void value(std::integral auto const number) requires(
      !std::same_as<decltype(number), bool const>) {
    std::array<char, std::numeric_limits<std::uint64_t>::digits10 + 2> digits;
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    append_word({digits.data(), end});
  }

  /// The fewest digits that tell the number from its neighbours, at least one of them behind the
  /// point: 0.25, 3.0. Finite and smaller than 1e15.
  void value(double number);

  /// UTF-8; what is none becomes U+FFFD.
  void value(std::string_view text);

  /// What was written. The writer is of no use afterwards.
  [[nodiscard]] std::string take() && { return std::move(text_); }

 private:
  /// What stands in front of the next key, or of the next value where none is called for.
  enum class Front : std::uint8_t {
    Nothing,    ///< the value of a key, or the outermost one
    Beginning,  ///< the first member or item
    Item,       ///< another one
  };

  void start_item();
  void begin(char bracket);
  void end(char bracket);
  void break_line();
  void append_word(std::string_view word);
  void append_character(char32_t c);

  std::string text_;
  Layout layout_;
  Front front_ = Front::Nothing;
  bool is_in_line_ = false;  ///< in a list that stands on one line
  std::size_t depth_ = 0;    ///< of the objects and lists that are open
};

}  // namespace textimport
