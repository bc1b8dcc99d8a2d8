// SPDX-License-Identifier: MIT
//
// The physical lines of a text, by number: where they start, what stands in them, and which one a
// position belongs to. Made once for a text and handed on: nobody else splits lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text_import/export.hpp"
#include "text_import/format/evidence.hpp"

namespace textimport {

/// The lines of a text, which ends at its length or its first U+FFFF, as an editor numbers them,
/// counted from 0, whatever quotes and comments they are part of. A line ending behind the last
/// line starts no further one. Refers to the text, which must outlive it. Positions count code
/// units from the text's start.
class TEXT_IMPORT_API LineIndex {
 public:
  /// An index of no text.
  LineIndex() = default;

  /// `line_endings` as in the parsing options: the first that matches ends the line.
  LineIndex(std::u16string_view text, std::vector<std::u16string> const& line_endings);

  [[nodiscard]] std::size_t count() const noexcept { return starts_.size(); }

  /// The text up to its end.
  [[nodiscard]] std::u16string_view text() const noexcept { return text_; }

  /// The line without its ending; it must exist.
  [[nodiscard]] std::u16string_view operator[](std::size_t const line) const noexcept {
    return text_.substr(starts_[line], ends_[line] - starts_[line]);
  }

  /// Where the line starts; the length of the text for the line behind the last one.
  [[nodiscard]] std::size_t start(std::size_t const line) const noexcept {
    return line < starts_.size() ? starts_[line] : text_.size();
  }

  /// The text from the start of one line up to the start of another, which is not before it.
  [[nodiscard]] std::u16string_view between(std::size_t const first,
                                            std::size_t const end) const noexcept {
    return text_.substr(start(first), start(end) - start(first));
  }

  /// Whether every code unit of the text is an ASCII character.
  [[nodiscard]] bool is_ascii() const noexcept { return is_ascii_; }

  /// Those of some characters that stand anywhere in the text, in the order in which they first do.
  [[nodiscard]] std::u16string held_of(std::u16string_view wanted) const;

  /// The line that holds the offset or whose ending does. The text must have a line.
  [[nodiscard]] std::size_t line_at(std::size_t offset) const noexcept;

  /// The same, looked for from `line` on, which holds an offset before it or the same one. Linear
  /// in the lines between, for walks over a text.
  [[nodiscard]] std::size_t line_from(std::size_t line, std::size_t const offset) const noexcept {
    while (line + 1 < starts_.size() && starts_[line + 1] <= offset) {
      ++line;
    }
    return line;
  }

  /// As line_at(), as a place for people and programs. The text must have a line.
  [[nodiscard]] Position position_of(std::size_t offset) const noexcept;

 private:
  std::u16string_view text_;
  std::vector<std::size_t> starts_;
  std::vector<std::size_t> ends_;
  bool is_ascii_ = true;
};

}  // namespace textimport
