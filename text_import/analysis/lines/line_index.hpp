// SPDX-License-Identifier: MIT
//
// The physical lines of a sample, by number: where they start, what stands in them, and which one a
// position belongs to.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace textimport::analysis {

/// The lines of a text, counted from 0. A line ending behind the last line starts no further one.
/// Refers to the text, which must outlive it. Positions count code units from the text's start.
class LineIndex {
 public:
  /// `line_endings` as in the parsing options: the first that matches ends the line.
  LineIndex(std::u16string_view text, std::vector<std::u16string> const& line_endings);

  [[nodiscard]] std::size_t count() const noexcept { return starts_.size(); }

  [[nodiscard]] std::u16string_view text() const noexcept { return text_; }

  /// The line without its ending; it must exist.
  [[nodiscard]] std::u16string_view operator[](std::size_t const line) const noexcept {
    return text_.substr(starts_[line], ends_[line] - starts_[line]);
  }

  /// Where the line starts; the length of the text for the line behind the last one.
  [[nodiscard]] std::size_t start(std::size_t const line) const noexcept {
    return line < starts_.size() ? starts_[line] : text_.size();
  }

  /// Whether every code unit of the text is an ASCII character.
  [[nodiscard]] bool is_ascii() const noexcept { return is_ascii_; }

  /// Whether an ASCII character stands anywhere in the text.
  [[nodiscard]] bool hold(char16_t const character) const noexcept { return held_[character]; }

  /// The line that holds the position or whose ending does. The text must have a line.
  [[nodiscard]] std::size_t line_at(std::size_t position) const noexcept;

 private:
  std::u16string_view text_;
  std::vector<std::size_t> starts_;
  std::vector<std::size_t> ends_;
  std::array<bool, 128> held_{};
  bool is_ascii_ = true;
};

/// The text without blanks (spaces and tabs) at both ends.
[[nodiscard]] std::u16string_view trimmed(std::u16string_view text) noexcept;

}  // namespace textimport::analysis
